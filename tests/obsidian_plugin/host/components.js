'use strict';

// What the host gives a plug-in to build upon and to show.

class Events {
    listeners = [];

    on(name, callback) {
        const listener = { events: this, name, callback };
        this.listeners.push(listener);
        return listener;
    }

    offref(listener) {
        this.listeners = this.listeners.filter((other) => other !== listener);
    }

    trigger(name, ...values) {
        for (const listener of [...this.listeners]) {
            if (listener.name === name) listener.callback(...values);
        }
    }
}

/** A plug-in's base class; what it registers is undone by unload(). */
class Plugin {
    commands = [];
    ribbonIcons = [];
    settingTabs = [];
    cleanUps = [];

    constructor(app, manifest) {
        this.app = app;
        this.manifest = manifest;
    }

    addCommand(command) {
        this.commands.push(command);
        return command;
    }

    addRibbonIcon(icon, title, callback) {
        this.ribbonIcons.push({ icon, title, callback });
    }

    addSettingTab(tab) {
        this.settingTabs.push(tab);
    }

    register(cleanUp) {
        this.cleanUps.push(cleanUp);
    }

    registerEvent(listener) {
        this.register(() => listener.events.offref(listener));
    }

    async loadData() {
        return this.app.pluginData.load();
    }

    async saveData(data) {
        this.app.pluginData.save(data);
    }

    unload() {
        for (const cleanUp of this.cleanUps.splice(0)) cleanUp();
        this.onunload?.();
    }
}

class PluginSettingTab {
    constructor(app, plugin) {
        this.app = app;
        this.plugin = plugin;
        this.containerEl = {
            settings: [],
            empty() {
                this.settings = [];
            },
        };
    }
}

class Toggle {
    setValue(value) {
        this.value = value;
        return this;
    }

    onChange(callback) {
        this.callback = callback;
        return this;
    }

    /** As a click does it. */
    async flip() {
        this.value = !this.value;
        await this.callback(this.value);
    }
}

class Setting {
    constructor(container) {
        container.settings.push(this);
    }

    setName(name) {
        this.name = name;
        return this;
    }

    setDesc(description) {
        this.description = description;
        return this;
    }

    addToggle(fill) {
        this.toggle = new Toggle();
        fill(this.toggle);
        return this;
    }
}

module.exports = { Events, Plugin, PluginSettingTab, Setting };
