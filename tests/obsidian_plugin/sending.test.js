'use strict';

const assert = require('node:assert/strict');
const fs = require('fs');
const path = require('path');
const { test } = require('node:test');

const { Home } = require('./host/Home.js');
const { Host } = require('./host/Host.js');

async function startedHost() {
    const host = new Host();
    await host.start();
    return host;
}

test('sends what the tab shows, unsaved edits included, and says so', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const view = host.open('folder/talk.md', 'as saved');
    host.type(view, 'as typed');
    await host.send();
    assert.equal(home.content(), 'as typed');
    assert.deepEqual(host.notices, ['Sent “talk” to Tessaline.']);
});

test('creates the folder and leaves nothing else in it', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    host.open('talk.md', 'text');
    await host.send();
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('sends the active one of several tabs', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const first = host.open('first.md', 'first');
    host.open('second.md', 'second');
    await host.send();
    assert.equal(home.content(), 'second');
    host.activate(first);
    await host.send();
    assert.equal(home.content(), 'first');
});

test('sends the tab used last when a panel has the focus', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const view = host.open('talk.md', 'as saved');
    host.type(view, 'as typed');
    host.focusPanel();
    await host.send();
    assert.equal(home.content(), 'as typed');
});

test('sends the active tab when two show the same note', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const first = host.open('talk.md', 'first tab');
    const second = host.openFile(first.file);
    host.type(second, 'second tab');
    await host.send();
    assert.equal(home.content(), 'second tab');
});

test('sends the saved text of a note that another plug-in shows', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    host.openSpecial('board.md', '- [ ] a task');
    await host.send();
    assert.equal(home.content(), '- [ ] a task');
});

test('sends every character as it is', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const texts = [
        '',
        'one\r\ntwo\r\n\r\nthree',
        'no line break at the end',
        'tab\tand\0nul',
        'żółć 日本語 👩‍👩‍👧 é',
        '\u2028\u2029',
    ];
    const view = host.open('talk.md');
    for (const text of texts) {
        host.type(view, text);
        await host.send();
        assert.equal(home.content(), text);
    }
});

test('writes valid UTF-8 even for half a surrogate pair', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    host.open('talk.md', 'half \ud83d of one');
    await host.send();
    const bytes = fs.readFileSync(home.contentFile);
    assert.equal(new TextDecoder('utf-8', { fatal: true }).decode(bytes), 'half \ufffd of one');
});

test('sends a note of 10 MB', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const text = 'Zażółć gęślą jaźń.\n'.repeat(400_000);
    assert.ok(Buffer.byteLength(text) > 10_000_000);
    host.open('talk.md', text);
    await host.send();
    assert.ok(home.content() === text);
});

test('ends with the last text when sends overlap', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const view = host.open('talk.md');
    const sends = [];
    for (let i = 0; i < 50; ++i) {
        // The earlier, the longer: without order the short ones would be done first.
        host.type(view, `text ${i} `.repeat((50 - i) * 1000));
        sends.push(host.send());
    }
    host.type(view, 'typed after the last send');
    await Promise.all(sends);
    assert.equal(home.content(), 'text 49 '.repeat(1000));
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('ends with the note sent last when an earlier one takes long to read', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    host.openSpecial('slow.md', 'slow');
    let finishReading;
    host.app.vault.read = () => new Promise((resolve) => { finishReading = () => resolve('slow'); });
    const first = host.send();
    host.open('quick.md', 'quick');
    const second = host.send();
    await new Promise(setImmediate);
    finishReading();
    await Promise.all([first, second]);
    assert.equal(home.content(), 'quick');
});

test('never shows a reader half a text', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    const texts = ['a', 'b'].map((letter) => letter.repeat(1_000_000));
    const view = host.open('talk.md', texts[0]);
    await host.send();
    let sending = true;
    const sends = (async () => {
        for (let i = 0; i < 40; ++i) {
            host.type(view, texts[i % 2]);
            await host.send();
        }
        sending = false;
    })();
    let reads = 0;
    while (sending) {
        const text = await fs.promises.readFile(home.contentFile, 'utf8');
        assert.ok(texts.includes(text), `half a text of ${text.length} characters`);
        ++reads;
    }
    await sends;
    assert.ok(reads > 0);
});

test('has the whole text on the disk before it takes the place of the old one', async (t) => {
    new Home(t);
    const steps = [];
    const open = async (...parameters) => {
        const handle = await fs.promises.open(...parameters);
        for (const name of ['writeFile', 'sync', 'close']) {
            const original = handle[name];
            handle[name] = async (...values) => {
                steps.push(name);
                return original.apply(handle, values);
            };
        }
        return handle;
    };
    const rename = async (...parameters) => {
        steps.push('rename');
        return fs.promises.rename(...parameters);
    };
    const host = new Host();
    await host.start({ fs: { ...fs, promises: { ...fs.promises, open, rename } } });
    host.open('talk.md', 'text');
    await host.send();
    assert.deepEqual(steps, ['writeFile', 'sync', 'close', 'rename']);
});

test('writes behind a symbolic link and leaves the link', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    home.setContent('before');
    const real = path.join(home.folder, 'elsewhere.md');
    fs.renameSync(home.contentFile, real);
    fs.symlinkSync(real, home.contentFile);
    host.open('talk.md', 'text');
    await host.send();
    assert.ok(fs.lstatSync(home.contentFile).isSymbolicLink());
    assert.equal(fs.readFileSync(real, 'utf8'), 'text');
});

test('creates the file that a symbolic link points at', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    fs.mkdirSync(home.support, { recursive: true });
    fs.symlinkSync('../second', home.contentFile);
    fs.symlinkSync('third.md', path.join(home.support, '../second'));
    host.open('talk.md', 'text');
    await host.send();
    assert.equal(fs.readFileSync(path.join(home.support, '../third.md'), 'utf8'), 'text');
    assert.equal(home.content(), 'text');
});

test('keeps a file private that its owner made private', async (t) => {
    const home = new Home(t);
    const host = await startedHost();
    home.setContent('before');
    fs.chmodSync(home.contentFile, 0o600);
    host.open('talk.md', 'text');
    await host.send();
    assert.equal(fs.statSync(home.contentFile).mode & 0o777, 0o600);
    assert.equal(home.content(), 'text');
});
