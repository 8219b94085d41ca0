'use strict';

const assert = require('node:assert/strict');
const fs = require('fs');
const os = require('os');
const path = require('path');
const { test } = require('node:test');

const { Home } = require('./host/Home.js');
const { Host } = require('./host/Host.js');

function systemError(code) {
    return Object.assign(new Error(`${code}: in Node's own words`), {
        code,
        errno: -os.constants.errno[code],
    });
}

/** Node's fs with some functions of fs.promises replaced. */
function fsWith(functions) {
    return { fs: { ...fs, promises: { ...fs.promises, ...functions } } };
}

async function hostWithNote(modules) {
    const host = new Host();
    await host.start(modules);
    host.open('talk.md', 'new text');
    return host;
}

/** As another user than root, whom permissions do not stop. */
async function withoutPrivileges(action) {
    const isRoot = process.geteuid() === 0;
    if (isRoot) process.seteuid(65534);
    try {
        return await action();
    } finally {
        if (isRoot) process.seteuid(0);
    }
}

test('says that no note is open, and writes nothing', async (t) => {
    const home = new Home(t);
    const host = new Host();
    await host.start();
    await host.send();
    assert.deepEqual(host.notices, ['Nothing sent to Tessaline: no note is open.']);
    assert.deepEqual(home.names(), []);
});

test('says that a picture is no note, and keeps the text before', async (t) => {
    const home = new Home(t);
    home.setContent('before');
    const host = new Host();
    await host.start();
    host.openSpecial('diagram.canvas', '{}');
    await host.send();
    assert.deepEqual(host.notices, [
        'Nothing sent to Tessaline: “diagram.canvas” is not a Markdown note.',
    ]);
    assert.equal(home.content(), 'before');
});

test('says why when the folder is not writable, and keeps the text before', async (t) => {
    const home = new Home(t);
    home.setContent('before');
    fs.chmodSync(home.folder, 0o755);
    fs.chmodSync(home.support, 0o555);
    const host = await hostWithNote();
    await withoutPrivileges(() => host.send());
    fs.chmodSync(home.support, 0o755);
    assert.deepEqual(host.notices, [
        `“talk” was not sent to Tessaline. ${home.contentFile} cannot be written: permission denied`,
    ]);
    assert.equal(home.content(), 'before');
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('does not replace a file that its owner has locked', async (t) => {
    const home = new Home(t);
    home.setContent('before');
    const asked = [];
    const access = async (file, mode) => {
        asked.push([file, mode]);
        throw systemError('EACCES');
    };
    const host = await hostWithNote(fsWith({ access }));
    await host.send();
    assert.deepEqual(asked, [[fs.realpathSync(home.contentFile), fs.constants.W_OK]]);
    assert.match(host.notices[0], /permission denied$/);
    assert.equal(home.content(), 'before');
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('says why when the folder cannot be created', async (t) => {
    const home = new Home(t);
    fs.writeFileSync(path.join(home.folder, 'Library'), 'a file');
    const host = await hostWithNote();
    await host.send();
    assert.equal(host.notices.length, 1);
    assert.match(host.notices[0], /cannot be written: not a directory$/);
});

test('leaves what is no regular file alone', async (t) => {
    const home = new Home(t);
    fs.mkdirSync(home.contentFile, { recursive: true });
    const host = await hostWithNote();
    await host.send();
    assert.match(host.notices[0], /cannot be written: it is not a regular file$/);
    assert.ok(fs.statSync(home.contentFile).isDirectory());
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('says why when symbolic links go round in circles', async (t) => {
    const home = new Home(t);
    fs.mkdirSync(home.support, { recursive: true });
    fs.symlinkSync('tessaline-content.md', home.contentFile);
    const host = await hostWithNote();
    await host.send();
    assert.match(host.notices[0], /too many symbolic links/);
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('keeps the text before and no other file when the disk is full', async (t) => {
    const home = new Home(t);
    home.setContent('before');
    let handle;
    const open = async (...parameters) => {
        handle = await fs.promises.open(...parameters);
        const { writeFile } = handle;
        handle.writeFile = async (text) => {
            await writeFile.call(handle, text.slice(0, 3));
            throw systemError('ENOSPC');
        };
        return handle;
    };
    const host = await hostWithNote(fsWith({ open }));
    await host.send();
    assert.match(host.notices[0], /no space left on device$/);
    assert.equal(handle.fd, -1, 'the file is closed');
    assert.equal(home.content(), 'before');
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('keeps the text before and no other file when the last step fails', async (t) => {
    const home = new Home(t);
    home.setContent('before');
    const rename = async () => { throw systemError('EIO'); };
    const host = await hostWithNote(fsWith({ rename }));
    await host.send();
    assert.equal(host.notices.length, 1);
    assert.match(host.notices[0], /i\/o error$/);
    assert.equal(home.content(), 'before');
    assert.deepEqual(home.names(), ['tessaline-content.md']);
});

test('tells the first reason when cleaning up fails as well', async (t) => {
    const home = new Home(t);
    const rename = async () => { throw systemError('EIO'); };
    const rm = async () => { throw systemError('EACCES'); };
    const host = await hostWithNote(fsWith({ rename, rm }));
    await host.send();
    assert.match(host.notices[0], /i\/o error$/);
    assert.equal(home.content(), null);
});

test('says why when a note cannot be read, and keeps the text before', async (t) => {
    const home = new Home(t);
    home.setContent('before');
    const host = new Host();
    await host.start();
    const view = host.openSpecial('board.md');
    host.saved.delete(view.file);
    await host.send();
    assert.deepEqual(host.notices, [
        '“board” was not sent to Tessaline. The note cannot be read: File not found',
    ]);
    assert.equal(home.content(), 'before');
});

test('sends again once the reason is gone', async (t) => {
    const home = new Home(t);
    fs.writeFileSync(path.join(home.folder, 'Library'), 'a file');
    const host = await hostWithNote();
    await host.send();
    fs.unlinkSync(path.join(home.folder, 'Library'));
    await host.send();
    assert.equal(home.content(), 'new text');
    assert.equal(host.notices[1], 'Sent “talk” to Tessaline.');
});
