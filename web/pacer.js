// How many frames are due, from the times at which the screen asks for a picture. Frames last 25 ms,
// whatever the screen's rate is. Nothing here reads a clock, so node can test it. Used by worker.js.

const FRAME_MS = 25;
const MOST = 4; // frames caught up after a late callback
const SLACK_MS = 2; // a callback that comes a little early counts, so that 40 Hz is one frame each

export class Pacer {
    constructor() {
        this.speed = 1;
        this.stop();
    }

    // Frames a show of normal speed would make of one: 2 plays twice as fast.
    setSpeed(speed) {
        this.speed = speed;
    }

    // The next call of due() makes the first frame due.
    start() {
        this.last = null;
        this.waiting = 0;
        this.cost = 0;
    }

    stop() {
        this.start();
    }

    // now: ms, of any one clock. The frames to draw now, and whether the clock gave in: then more
    // was missed than is made up for, and what goes by the clock elsewhere must be set again.
    due(now) {
        const frame = FRAME_MS / this.speed;
        if (this.last === null) {
            this.last = now;
            return { steps: 1, gaveIn: false };
        }
        this.waiting += Math.max(0, now - this.last);
        this.last = now;
        const steps = Math.max(0, Math.floor((this.waiting + SLACK_MS) / frame));
        // A machine that cannot draw frames as fast as they come plays slower, not in jumps.
        const most = this.cost > frame * 0.9 ? 1 : Math.max(MOST, Math.ceil(MOST * this.speed));
        if (steps > most) {
            this.waiting = 0;
            return { steps: most, gaveIn: true };
        }
        this.waiting -= steps * frame;
        return { steps, gaveIn: false };
    }

    // Tells what frames have cost, in ms: a mean over the last ten or so.
    spent(steps, ms) {
        if (steps > 0) {
            this.cost += (ms / steps - this.cost) * (this.cost === 0 ? 1 : 0.1);
        }
    }
}
