'use strict';

const { Events, Plugin, PluginSettingTab, Setting } = require('./components.js');
const { loadPluginClass, readManifest } = require('./loading.js');
const { EditableFileView, MarkdownView, TFile, View } = require('./views.js');

/** Obsidian without a window: a vault, tabs, and one plug-in. */
class Host {
    notices = [];
    saved = new Map(); // a file's text as it is on disk
    leaves = [];
    activeView = null;
    activeFile = null;
    data = null; // the plug-in's settings file

    constructor() {
        const vault = Object.assign(new Events(), { read: (file) => this.readSaved(file) });
        const workspace = Object.assign(new Events(), {
            getActiveViewOfType: (type) => (this.activeView instanceof type ? this.activeView : null),
            getActiveFile: () => this.activeFile,
            getLeavesOfType: (type) => this.leaves.filter(({ view }) => view.type === type),
            iterateAllLeaves: (visit) => [...this.leaves].forEach((leaf) => visit(leaf)),
        });
        const pluginData = {
            load: () => structuredClone(this.data),
            save: (data) => { this.data = structuredClone(data); },
        };
        this.app = { vault, workspace, pluginData };
    }

    // The plug-in

    /** `modules` replace Node's own, to make them fail. */
    async start(modules = {}) {
        const { notices } = this;
        class Notice {
            constructor(message, duration) {
                notices.push(message);
                this.duration = duration;
            }
        }
        const views = { EditableFileView, MarkdownView };
        const obsidian = { Notice, Plugin, PluginSettingTab, Setting, ...views };
        const PluginClass = loadPluginClass({ obsidian, ...modules });
        this.plugin = new PluginClass(this.app, readManifest());
        await this.plugin.onload();
    }

    /** Ends once the plug-in has done all that the command makes it do. */
    async send() {
        await this.plugin.commands[0].callback();
    }

    unload() {
        this.plugin.unload();
    }

    // What the user does

    /** Opens a note in a tab of its own, which becomes the active one. */
    open(name, savedText = '') {
        const file = new TFile(name);
        this.saved.set(file, savedText);
        return this.openFile(file, new MarkdownView(file, savedText));
    }

    openFile(file, view = new MarkdownView(file, this.saved.get(file))) {
        this.leaves.push({ view });
        this.activate(view);
        this.app.workspace.trigger('layout-change');
        return view;
    }

    /** A tab that no text editor shows: a picture, or a note in another plug-in's view. */
    openSpecial(name, savedText = '') {
        const file = new TFile(name);
        this.saved.set(file, savedText);
        return this.openFile(file, new EditableFileView(file, 'special'));
    }

    /** A panel at the side that tells about a file. */
    openPanel(file) {
        this.leaves.push({ view: new View(file, 'outline') });
    }

    activate(view) {
        this.activeView = view;
        this.activeFile = view.file;
        this.app.workspace.trigger('file-open', view.file);
    }

    /** The pointer goes to a panel: no note has the focus, but one is still the last used. */
    focusPanel() {
        this.activeView = null;
    }

    type(view, text) {
        view.text = text;
        this.app.workspace.trigger('editor-change', {}, view);
    }

    /** What Obsidian does by itself two seconds after the last change, and on closing a tab. */
    save(view) {
        this.change(view.file, view.text);
    }

    /** A file changes on disk, by whomever. */
    change(file, text) {
        this.saved.set(file, text);
        this.app.vault.trigger('modify', file);
    }

    close(view) {
        this.leaves = this.leaves.filter((leaf) => leaf.view !== view);
        if (this.activeView === view) {
            this.activeView = this.leaves.at(-1)?.view ?? null;
            this.activeFile = this.activeView?.file ?? null;
        }
        this.app.workspace.trigger('layout-change');
    }

    settings() {
        const tab = this.plugin.settingTabs[0];
        tab.display();
        return tab.containerEl.settings;
    }

    // What is inside

    async readSaved(file) {
        if (!this.saved.has(file)) throw new Error('File not found');
        return this.saved.get(file);
    }

    get listenerCount() {
        return this.app.vault.listeners.length + this.app.workspace.listeners.length;
    }
}

module.exports = { Host };
