'use strict';

const assert = require('node:assert/strict');
const { test } = require('node:test');

const { Home } = require('./host/Home.js');
const { Host } = require('./host/Host.js');
const { readManifest } = require('./host/loading.js');

test('the manifest names a desktop plug-in that Obsidian takes', () => {
    const manifest = readManifest();
    assert.equal(manifest.id, 'obsidian-tessaline');
    assert.equal(manifest.isDesktopOnly, true);
    assert.match(manifest.minAppVersion, /^\d+\.\d+\.\d+$/);
    for (const key of ['name', 'author', 'description']) assert.ok(manifest[key]);
});

test('the manifest has the program\'s version', () => {
    assert.equal(readManifest().version, process.env.TESSALINE_VERSION);
});

test('there is one command, found in the palette by "tessaline"', async () => {
    const host = new Host();
    await host.start();
    const [command, ...others] = host.plugin.commands;
    assert.equal(others.length, 0);
    assert.equal(command.id, 'send-to-tessaline');
    assert.equal(command.name, 'Send to Tessaline');
    assert.match(command.name, /tessaline/i);
});

test('a ribbon icon of the same name does the same', async () => {
    const host = new Host();
    await host.start();
    const [ribbonIcon, ...others] = host.plugin.ribbonIcons;
    assert.equal(others.length, 0);
    assert.equal(ribbonIcon.title, 'Send to Tessaline');
    assert.ok(ribbonIcon.icon);
    assert.equal(ribbonIcon.callback, host.plugin.commands[0].callback);
});

test('nothing is shown or written before the command is used', async (t) => {
    const home = new Home(t);
    const host = new Host();
    host.open('talk.md', 'text');
    await host.start();
    assert.deepEqual(host.notices, []);
    assert.deepEqual(home.names(), []);
});

test('unloading leaves no listener behind', async () => {
    const host = new Host();
    await host.start();
    assert.ok(host.listenerCount > 0);
    host.unload();
    assert.equal(host.listenerCount, 0);
});
