'use strict';

// send_note.js NAME TEXT [TYPED]: opens a note with TEXT in a host without a window, sends it by the
// plug-in's command and prints what the user is told. Then types TYPED, which is followed live.

const { Host } = require('./host/Host.js');

async function main([name, text, typed]) {
    const host = new Host();
    host.data = { followLive: typed !== undefined };
    await host.start();
    const view = host.open(name, 'not yet changed');
    host.type(view, text);
    await host.send();
    console.log(host.notices.join('\n'));
    if (typed !== undefined) host.type(view, typed);
}

main(process.argv.slice(2));
