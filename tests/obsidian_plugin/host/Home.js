'use strict';

const fs = require('fs');
const os = require('os');
const path = require('path');

/** A home folder that exists for one test only. */
class Home {
    constructor(test) {
        this.folder = fs.mkdtempSync(path.join(os.tmpdir(), 'tessaline-plugin-'));
        this.support = path.join(this.folder, 'Library/Application Support/Tessaline');
        this.contentFile = path.join(this.support, 'tessaline-content.md');
        const { HOME } = process.env;
        process.env.HOME = this.folder;
        test.after(() => {
            if (HOME === undefined) delete process.env.HOME;
            else process.env.HOME = HOME;
            fs.rmSync(this.folder, { recursive: true, force: true });
        });
    }

    /** The text that the prompter finds; none when there is no file. */
    content() {
        return fs.existsSync(this.contentFile) ? fs.readFileSync(this.contentFile, 'utf8') : null;
    }

    setContent(text) {
        fs.mkdirSync(this.support, { recursive: true });
        fs.writeFileSync(this.contentFile, text);
    }

    /** The names of all that is beside the content file, itself included. */
    names() {
        return fs.existsSync(this.support) ? fs.readdirSync(this.support).sort() : [];
    }
}

module.exports = { Home };
