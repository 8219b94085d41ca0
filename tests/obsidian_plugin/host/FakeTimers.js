'use strict';

/** Takes the place of setTimeout for one test; time moves by advance() only. */
class FakeTimers {
    now = 0;
    timers = new Map();
    lastId = 0;

    constructor(test) {
        const { setTimeout, clearTimeout } = globalThis;
        globalThis.setTimeout = (callback, delay) => this.add(callback, delay);
        globalThis.clearTimeout = (id) => this.timers.delete(id);
        test.after(() => Object.assign(globalThis, { setTimeout, clearTimeout }));
    }

    add(callback, delay) {
        this.timers.set(++this.lastId, { time: this.now + delay, callback });
        return this.lastId;
    }

    get count() {
        return this.timers.size;
    }

    /** Ends once all that the due timers started is done. */
    async advance(milliseconds) {
        this.now += milliseconds;
        for (const [id, { time, callback }] of [...this.timers]) {
            if (time > this.now) continue;
            this.timers.delete(id);
            await callback();
        }
    }
}

module.exports = { FakeTimers };
