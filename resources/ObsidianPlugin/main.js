'use strict';

const obsidian = require('obsidian');
const { EditableFileView, MarkdownView, Notice, Plugin, PluginSettingTab, Setting } = obsidian;
const crypto = require('crypto');
const fs = require('fs').promises;
const os = require('os');
const path = require('path');
const util = require('util');

/** @typedef {import('obsidian').TAbstractFile} AnyFile */
/** @typedef {import('obsidian').TFile} TFile */

const sendTitle = 'Send to Tessaline';
const icon = 'send';
const followDelay = 300; // milliseconds
const failureDuration = 10000; // milliseconds

/** The file that Tessaline reads: a Markdown text as UTF-8, nothing else. */
function contentFilePath() {
    const support = path.join(os.homedir(), 'Library', 'Application Support', 'Tessaline');
    return path.join(support, 'tessaline-content.md');
}

/**
 * Why something failed, in the system's words.
 * @param {unknown} error
 * @returns {string}
 */
function reason(error) {
    const { errno, message } = /** @type {NodeJS.ErrnoException} */ (error);
    const known = errno === undefined ? undefined : util.getSystemErrorMap().get(errno);
    return known ? known[1] : message;
}

/**
 * Names what failed in front of the reason.
 * @template T
 * @param {string} what
 * @param {() => T | Promise<T>} action
 * @returns {Promise<T>}
 */
async function explained(what, action) {
    try {
        return await action();
    } catch (error) {
        throw new Error(`${what}: ${reason(error)}`);
    }
}

/**
 * Where a file is in truth. It need not exist, nor what a symbolic link in its place points at.
 * @param {string} file
 * @returns {Promise<string>}
 */
async function behindLinks(file) {
    try {
        return await fs.realpath(file);
    } catch (error) {
        if (/** @type {NodeJS.ErrnoException} */ (error).code !== 'ENOENT') throw error;
    }
    const link = await fs.readlink(file).catch(() => null);
    if (link === null) return file;
    return behindLinks(path.resolve(await fs.realpath(path.dirname(file)), link));
}

/**
 * The permissions of the file that is about to be replaced. Fails when it must not be.
 * @param {string} file
 * @returns {Promise<number>}
 */
async function replaceableMode(file) {
    let status;
    try {
        status = await fs.stat(file);
    } catch (error) {
        if (/** @type {NodeJS.ErrnoException} */ (error).code === 'ENOENT') return 0o666;
        throw error;
    }
    if (!status.isFile()) throw new Error('it is not a regular file');
    // Renaming would replace a file that its owner has locked.
    await fs.access(file, fs.constants.W_OK);
    return status.mode & 0o777;
}

/**
 * @param {string} file
 * @param {string} text
 * @param {number} mode
 */
async function writeNewFile(file, text, mode) {
    const handle = await fs.open(file, 'wx', mode);
    try {
        await handle.writeFile(text, 'utf8');
        await handle.sync();
    } finally {
        await handle.close();
    }
}

/**
 * Replaces a file, whole or not at all, and creates its folder where needed.
 * @param {string} file
 * @param {string} text
 */
async function writeWhole(file, text) {
    await fs.mkdir(path.dirname(file), { recursive: true });
    const target = await behindLinks(file);
    const mode = await replaceableMode(target);
    // Another window of Obsidian may be writing as well, so the name is nobody else's.
    const temporary = `${target}.${crypto.randomUUID()}.tmp`;
    try {
        await writeNewFile(temporary, text, mode);
        await fs.rename(temporary, target);
    } catch (error) {
        await fs.rm(temporary, { force: true }).catch(() => {});
        throw error;
    }
}

/**
 * Sends one note again when it has changed: at most once in `followDelay`, never while the last
 * text is still on its way, and always the last change.
 */
class Follower {
    /** @type {TFile | null} */
    note = null;
    /** @type {TFile | null} */
    changedNote = null;
    /** @type {ReturnType<typeof setTimeout> | null} */
    timer = null;
    sending = false;

    /** @param {(note: TFile) => Promise<void>} send never fails */
    constructor(send) {
        this.send = send;
    }

    /** @param {TFile} note */
    follow(note) {
        this.cancel();
        this.note = note;
    }

    /** @param {AnyFile | null} file */
    changed(file) {
        if (!this.note || file !== this.note) return;
        this.changedNote = this.note;
        this.schedule();
    }

    /** Follows no longer. A change that waits is sent, once Obsidian has had the time to save it. */
    leave() {
        this.note = null;
        this.clearTimer();
        this.schedule();
    }

    /** Forgets the change that waits. */
    cancel() {
        this.changedNote = null;
        this.clearTimer();
    }

    stop() {
        this.cancel();
        this.note = null;
    }

    clearTimer() {
        if (this.timer !== null) clearTimeout(this.timer);
        this.timer = null;
    }

    schedule() {
        if (!this.changedNote || this.timer !== null || this.sending) return;
        this.timer = setTimeout(() => this.sendChange(), followDelay);
    }

    async sendChange() {
        const note = this.changedNote;
        this.cancel();
        if (!note) return;
        this.sending = true;
        await this.send(note);
        this.sending = false;
        this.schedule();
    }
}

class TessalinePlugin extends Plugin {
    followLive = false;
    follower = new Follower((note) => this.sendChanged(note));
    followFailed = false;
    /** @type {Promise<unknown>} */
    lastWrite = Promise.resolve();
    /** @type {string | null} */
    writtenText = null;

    async onload() {
        this.followLive = await this.loadFollowLive();
        const send = () => this.sendActiveNote();
        this.addCommand({ id: 'send-to-tessaline', name: sendTitle, icon, callback: send });
        this.addRibbonIcon(icon, sendTitle, send);
        this.addSettingTab(new TessalineSettingTab(this.app, this));
        this.watchNotes();
    }

    watchNotes() {
        const { vault, workspace } = this.app;
        const leaveWhenClosed = () => this.leaveWhenClosed();
        this.registerEvent(workspace.on('editor-change', (_, info) => this.noteChanged(info.file)));
        this.registerEvent(vault.on('modify', (file) => this.noteChanged(file)));
        this.registerEvent(workspace.on('layout-change', leaveWhenClosed));
        this.registerEvent(workspace.on('file-open', leaveWhenClosed));
        this.register(() => this.follower.stop());
    }

    // Settings

    /** Whatever the settings file holds, the plug-in starts. */
    async loadFollowLive() {
        const data = await this.loadData().catch(() => null);
        return data?.followLive === true;
    }

    /** @param {boolean} on */
    async setFollowLive(on) {
        this.followLive = on;
        if (!on) this.follower.cancel();
        try {
            await explained('The setting cannot be saved', () => this.saveData({ followLive: on }));
        } catch (error) {
            this.showFailure(reason(error));
        }
    }

    // Sending

    /** The command: sends the note that the user works on, and says what has become of it. */
    async sendActiveNote() {
        const { workspace } = this.app;
        const note = workspace.getActiveViewOfType(MarkdownView)?.file ?? workspace.getActiveFile();
        if (!note) return this.showFailure('Nothing sent to Tessaline: no note is open.');
        if (note.extension !== 'md') {
            return this.showFailure(`Nothing sent to Tessaline: “${note.name}” is not a Markdown note.`);
        }
        this.follower.follow(note);
        this.followFailed = false;
        try {
            await this.write(note, this.textOf(note));
            new Notice(`Sent “${note.basename}” to Tessaline.`);
        } catch (error) {
            this.showFailure(`“${note.basename}” was not sent to Tessaline. ${reason(error)}`);
        }
    }

    /** @param {AnyFile | null} file */
    noteChanged(file) {
        if (this.followLive) this.follower.changed(file);
    }

    /**
     * Sends a followed note again. Says nothing but the first failure in a row.
     * @param {TFile} note
     */
    async sendChanged(note) {
        try {
            await this.write(note, this.textOf(note), this.writtenText);
            this.followFailed = false;
        } catch (error) {
            if (this.followFailed) return;
            this.followFailed = true;
            const what = `Tessaline does not get the changes of “${note.basename}”.`;
            this.showFailure(`${what} ${reason(error)}`);
        }
    }

    leaveWhenClosed() {
        const { note } = this.follower;
        if (note && !this.isOpen(note)) this.follower.leave();
    }

    /**
     * Writes a text once those before it are written, so that the text sent last stays.
     * @param {TFile} note
     * @param {() => string | Promise<string>} text
     * @param {string | null} unless a text that need not be written
     */
    write(note, text, unless = null) {
        const write = async () => {
            const content = await explained('The note cannot be read', text);
            if (content === unless) return;
            const file = contentFilePath();
            await explained(`${file} cannot be written`, () => writeWhole(file, content));
            this.writtenText = content;
        };
        const result = this.lastWrite.then(write);
        this.lastWrite = result.catch(() => {});
        return result;
    }

    // Notes

    /**
     * A note's text as it is in its tab now, unsaved edits included; without a tab, as it is saved.
     * @param {TFile} note
     * @returns {() => string | Promise<string>}
     */
    textOf(note) {
        const view = this.viewOf(note);
        if (!view) return () => this.app.vault.read(note);
        const text = view.getViewData();
        return () => text;
    }

    /** @param {TFile} note */
    viewOf(note) {
        const { workspace } = this.app;
        const active = workspace.getActiveViewOfType(MarkdownView);
        if (active?.file === note) return active;
        for (const { view } of workspace.getLeavesOfType('markdown')) {
            // The view of a tab that was never looked at is only a placeholder.
            if (view instanceof MarkdownView && view.file === note) return view;
        }
        return null;
    }

    /**
     * Whether a tab shows a note, be it through another plug-in's view. Side panels such as the
     * outline, which only tell about a note, do not count.
     * @param {TFile} note
     */
    isOpen(note) {
        let open = false;
        this.app.workspace.iterateAllLeaves(({ view }) => {
            if (view instanceof EditableFileView && view.file === note) open = true;
        });
        return open;
    }

    /** @param {string} message */
    showFailure(message) {
        new Notice(message, failureDuration);
    }
}

class TessalineSettingTab extends PluginSettingTab {
    /**
     * @param {import('obsidian').App} app
     * @param {TessalinePlugin} plugin
     */
    constructor(app, plugin) {
        super(app, plugin);
        this.tessaline = plugin;
    }

    display() {
        this.containerEl.empty();
        new Setting(this.containerEl)
            .setName('Follow the note live')
            .setDesc('After a note has been sent, Tessaline shows its changes until you close it.')
            .addToggle((toggle) => {
                toggle.setValue(this.tessaline.followLive);
                toggle.onChange((on) => this.tessaline.setFollowLive(on));
            });
    }
}

module.exports = TessalinePlugin;
