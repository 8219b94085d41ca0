'use strict';

const assert = require('node:assert/strict');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');

const { FakeTimers } = require('./host/FakeTimers.js');
const { Home } = require('./host/Home.js');
const { Host } = require('./host/Host.js');

const delay = 300;

/** A host with one open note that was sent, and with following switched on. */
async function setUp(test, { data = { followLive: true }, modules } = {}) {
    const home = new Home(test);
    const timers = new FakeTimers(test);
    const host = new Host();
    host.data = data;
    await host.start(modules);
    const view = host.open('talk.md', 'sent');
    await host.send();
    host.notices.length = 0;
    return { home, timers, host, view };
}

/** Holds up whoever wants to pass until it is opened. */
class Gate {
    reached = new Promise((resolve) => { this.reach = resolve; });
    opened = new Promise((resolve) => { this.open = resolve; });

    pass() {
        this.reach();
        return this.opened;
    }
}

/** Makes every write fail, or work again. */
function breakHome(home) {
    const support = path.dirname(home.support);
    fs.renameSync(support, `${support}, moved`);
    fs.writeFileSync(support, 'a file in the place of a folder');
}

function repairHome(home) {
    const support = path.dirname(home.support);
    fs.unlinkSync(support);
    fs.renameSync(`${support}, moved`, support);
}

test('follows nothing at first', async (t) => {
    const { home, timers, host, view } = await setUp(t, { data: null });
    host.type(view, 'typed');
    assert.equal(timers.count, 0);
    assert.equal(home.content(), 'sent');
});

test('sends a change after the delay, silently', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.type(view, 'typed');
    await timers.advance(delay - 1);
    assert.equal(home.content(), 'sent');
    await timers.advance(1);
    assert.equal(home.content(), 'typed');
    assert.deepEqual(host.notices, []);
});

test('sends many changes as one, with the text of the last', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.type(view, 't');
    host.type(view, 'ty');
    host.type(view, 'typ');
    assert.equal(timers.count, 1);
    await timers.advance(delay);
    assert.equal(home.content(), 'typ');
    assert.equal(timers.count, 0);
});

test('keeps up with somebody who types without a pause', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    for (let i = 1; i <= 10; ++i) {
        host.type(view, `letter ${i}`);
        await timers.advance(delay / 3);
    }
    assert.notEqual(home.content(), 'sent');
});

test('waits for a slow write before it sends the change that came meanwhile', async (t) => {
    let gate = null;
    const rename = async (...parameters) => {
        if (gate) await gate.pass();
        return fs.promises.rename(...parameters);
    };
    const modules = { fs: { ...fs, promises: { ...fs.promises, rename } } };
    const { home, timers, host, view } = await setUp(t, { modules });
    gate = new Gate();
    host.type(view, 'first');
    const firstWrite = timers.advance(delay);
    await gate.reached;
    host.type(view, 'second');
    assert.equal(timers.count, 0);
    gate.open();
    await firstWrite;
    assert.equal(home.content(), 'first');
    await timers.advance(delay);
    assert.equal(home.content(), 'second');
});

test('follows changes that come from elsewhere', async (t) => {
    const { home, timers, host } = await setUp(t);
    const board = host.openSpecial('board.md', 'before');
    await host.send();
    host.change(board.file, 'after');
    await timers.advance(delay);
    assert.equal(home.content(), 'after');
});

test('does not write the same text twice', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.type(view, 'typed');
    await timers.advance(delay);
    const before = fs.statSync(home.contentFile);
    host.save(view);
    await timers.advance(delay);
    const after = fs.statSync(home.contentFile);
    assert.deepEqual([after.ino, after.mtimeMs], [before.ino, before.mtimeMs]);
});

test('leaves other notes alone', async (t) => {
    const { home, timers, host } = await setUp(t);
    const other = host.open('other.md', 'other');
    host.type(other, 'typed');
    host.save(other);
    assert.equal(timers.count, 0);
    assert.equal(home.content(), 'sent');
});

test('follows nothing before a note was sent', async (t) => {
    const home = new Home(t);
    const timers = new FakeTimers(t);
    const host = new Host();
    host.data = { followLive: true };
    await host.start();
    const view = host.open('talk.md', 'text');
    host.type(view, 'typed');
    host.app.workspace.trigger('editor-change', {}, { file: null });
    assert.equal(timers.count, 0);
    assert.equal(home.content(), null);
});

test('goes on while the note is open behind another one', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.open('other.md', 'other');
    host.type(view, 'typed');
    await timers.advance(delay);
    assert.equal(home.content(), 'typed');
});

test('goes on while one of several tabs of the note is open', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    const second = host.openFile(view.file);
    host.close(view);
    host.type(second, 'typed');
    await timers.advance(delay);
    assert.equal(home.content(), 'typed');
});

test('goes on under another name', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    view.file.rename('folder/speech.md');
    host.type(view, 'typed');
    await timers.advance(delay);
    assert.equal(home.content(), 'typed');
});

test('turns to the note that is sent next', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    const other = host.open('other.md', 'other');
    host.type(view, 'a change that is out of date before it is sent');
    await host.send();
    assert.equal(timers.count, 0);
    host.type(view, 'a change of the earlier note');
    await timers.advance(delay);
    assert.equal(home.content(), 'other');
    host.type(other, 'typed');
    await timers.advance(delay);
    assert.equal(home.content(), 'typed');
});

test('ends when the note is closed, also if it is opened again', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.close(view);
    const again = host.openFile(view.file);
    host.type(again, 'typed');
    assert.equal(timers.count, 0);
    assert.equal(home.content(), 'sent');
});

test('ends when another note takes the tab', async (t) => {
    const { timers, host, view } = await setUp(t);
    const note = view.file;
    host.open('other.md');
    view.file = host.activeFile;
    host.activate(view);
    host.change(note, 'changed elsewhere');
    assert.equal(timers.count, 0);
});

test('ends although a panel at the side still tells about the note', async (t) => {
    const { timers, host, view } = await setUp(t);
    host.openPanel(view.file);
    host.close(view);
    host.change(view.file, 'changed elsewhere');
    assert.equal(timers.count, 0);
});

test('sends what was typed right before the note is closed', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.type(view, 'typed');
    await timers.advance(delay - 1);
    host.close(view);
    await timers.advance(delay - 1);
    host.save(view);
    assert.equal(home.content(), 'sent');
    await timers.advance(1);
    assert.equal(home.content(), 'typed');
    assert.equal(timers.count, 0);
});

test('tells only the first failure in a row', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    const change = async (text) => {
        host.type(view, text);
        await timers.advance(delay);
    };
    breakHome(home);
    await change('one');
    await change('two');
    assert.equal(host.notices.length, 1);
    assert.match(host.notices[0], /changes of “talk”.*cannot be written: /);
    repairHome(home);
    await change('three');
    assert.equal(home.content(), 'three');
    assert.equal(host.notices.length, 1);
    breakHome(home);
    await change('four');
    assert.equal(host.notices.length, 2);
});

test('ends when it is switched off, with a change under way', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.type(view, 'typed');
    await host.settings()[0].toggle.flip();
    assert.equal(timers.count, 0);
    host.type(view, 'typed again');
    assert.equal(timers.count, 0);
    assert.equal(home.content(), 'sent');
});

test('follows the open note as soon as it is switched on', async (t) => {
    const { home, timers, host, view } = await setUp(t, { data: null });
    await host.settings()[0].toggle.flip();
    host.type(view, 'typed');
    await timers.advance(delay);
    assert.equal(home.content(), 'typed');
});

test('unloading drops the change that waits', async (t) => {
    const { home, timers, host, view } = await setUp(t);
    host.type(view, 'typed');
    host.unload();
    assert.equal(timers.count, 0);
    host.type(view, 'typed again');
    assert.equal(timers.count, 0);
    assert.equal(home.content(), 'sent');
});
