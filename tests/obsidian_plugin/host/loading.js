'use strict';

// Loads the plug-in as Obsidian does: as a CommonJS module that gets a `require` of the host's.

const fs = require('fs');
const { isBuiltin } = require('module');
const path = require('path');
const vm = require('vm');

// Where a build has put it.
const pluginFolder = process.env.TESSALINE_OBSIDIAN_PLUGIN;
if (!pluginFolder) throw new Error('TESSALINE_OBSIDIAN_PLUGIN does not name the plug-in\'s folder');

function readManifest() {
    return JSON.parse(fs.readFileSync(path.join(pluginFolder, 'manifest.json'), 'utf8'));
}

/** The plug-in's class. `modules` are what it gets by these names; else there is only Node's own. */
function loadPluginClass(modules) {
    const file = path.join(pluginFolder, 'main.js');
    const code = fs.readFileSync(file, 'utf8');
    const run = vm.compileFunction(code, ['require', 'module', 'exports'], { filename: file });
    const requireInHost = (name) => {
        if (name in modules) return modules[name];
        if (isBuiltin(name)) return require(name);
        throw new Error(`Cannot find module '${name}'`);
    };
    const module = { exports: {} };
    run(requireInHost, module, module.exports);
    return module.exports;
}

module.exports = { loadPluginClass, readManifest };
