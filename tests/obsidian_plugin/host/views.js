'use strict';

const path = require('path');

class TFile {
    constructor(name) {
        this.path = name;
        this.rename(name);
    }

    rename(name) {
        this.path = name;
        this.name = path.posix.basename(name);
        this.extension = path.posix.extname(name).slice(1);
        this.basename = path.posix.basename(name, path.posix.extname(name));
    }
}

class View {
    constructor(file, type) {
        this.file = file;
        this.type = type;
    }
}

class EditableFileView extends View {}

/** A tab with a note, in editing or reading mode. `text` is what the user sees now. */
class MarkdownView extends EditableFileView {
    constructor(file, text) {
        super(file, 'markdown');
        this.text = text;
    }

    getViewData() {
        return this.text;
    }
}

module.exports = { EditableFileView, MarkdownView, TFile, View };
