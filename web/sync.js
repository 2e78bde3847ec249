// When the sound is to be set again. The picture leads; the sound runs by its own clock, so how far
// they are apart is looked at with every frame that is shown. Pure, tested in node. Used by player.js.

const LIMIT = 0.018; // seconds apart that are let pass
const SEEN = 9; // frames whose median counts: one late frame says nothing
const REST_MS = 400; // between two settings, at least
const LONGEST_REST_MS = 6400; // where the machine is too slow for the sound to stay

export class Sync {
    constructor() {
        this.rest = REST_MS;
        this.set(-Infinity);
    }

    // The sound was set at this time (ms).
    set(at) {
        this.setAt = at;
        this.apart = [];
    }

    // How far the sound is ahead of a frame shown at this time (seconds); gaveIn: the clock of the
    // pictures has just given in. True: set it again.
    note(seconds, at, gaveIn = false) {
        this.apart.push(seconds);
        if (this.apart.length > SEEN) {
            this.apart.shift();
        }
        // What was seen before the clock gave in says nothing of now.
        const apart = gaveIn ? seconds : this.median();
        if (!gaveIn && this.apart.length < SEEN || at - this.setAt < this.rest) {
            return false;
        }
        if (Math.abs(apart) <= LIMIT) {
            // It has stayed for long: be quick again.
            if (at - this.setAt > 2 * LONGEST_REST_MS) {
                this.rest = REST_MS;
            }
            return false;
        }
        this.rest = Math.min(this.rest * 2, LONGEST_REST_MS);
        return true;
    }

    // Of the last frames, in seconds; 0 before the first.
    median() {
        const sorted = [...this.apart].sort((a, b) => a - b);
        return sorted.length ? sorted[sorted.length >> 1] : 0;
    }
}
