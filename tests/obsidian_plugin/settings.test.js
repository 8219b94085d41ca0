'use strict';

const assert = require('node:assert/strict');
const { test } = require('node:test');

const { Host } = require('./host/Host.js');

async function startedHost(data) {
    const host = new Host();
    host.data = data;
    await host.start();
    return host;
}

test('the settings tab has one switch, off at first', async () => {
    const host = await startedHost(null);
    const settings = host.settings();
    assert.equal(settings.length, 1);
    assert.equal(settings[0].name, 'Follow the note live');
    assert.ok(settings[0].description);
    assert.equal(settings[0].toggle.value, false);
});

test('opening the settings tab again does not show its switch twice', async () => {
    const host = await startedHost(null);
    host.settings();
    assert.equal(host.settings().length, 1);
});

test('the switch is kept for the next start', async () => {
    const host = await startedHost(null);
    await host.settings()[0].toggle.flip();
    assert.deepEqual(host.data, { followLive: true });
    const next = await startedHost(host.data);
    assert.equal(next.settings()[0].toggle.value, true);
    await next.settings()[0].toggle.flip();
    assert.deepEqual(next.data, { followLive: false });
    assert.deepEqual(next.notices, []);
});

for (const data of [undefined, null, 'text', 7, [], {}, { followLive: 'yes' }, { followLive: 1 }]) {
    test(`starts with following off when its data is ${JSON.stringify(data)}`, async () => {
        const host = await startedHost(data);
        assert.equal(host.settings()[0].toggle.value, false);
        assert.deepEqual(host.notices, []);
    });
}

test('starts when its data cannot be read', async () => {
    const host = new Host();
    host.app.pluginData.load = () => { throw new SyntaxError('Unexpected token'); };
    await host.start();
    assert.equal(host.plugin.commands.length, 1);
    assert.equal(host.settings()[0].toggle.value, false);
});

test('says why when the switch cannot be saved, and obeys it all the same', async () => {
    const host = await startedHost(null);
    host.app.pluginData.save = () => { throw new Error('disk full'); };
    await host.settings()[0].toggle.flip();
    assert.deepEqual(host.notices, ['The setting cannot be saved: disk full']);
    assert.equal(host.settings()[0].toggle.value, true);
});
