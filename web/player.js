// The show as the page holds it: the thread that draws, the sound beside it, and what is asked of
// both. Has no elements of its own but the canvases it is given. Events: "state", "frame",
// "winding", "figures", "object", "screenshot", "end", "fault"; what they tell is in event.detail.
// Used by page.js, and by any other page that imports it.
import { Load } from "./load.js";
import { FRAMES_A_SECOND } from "./moment.js";
import { Sound, decode, joinParts } from "./sound.js";
import { Sync } from "./sync.js";

export const WIDTH = 640;
export const HEIGHT = 480;
export const SPEEDS = [0.25, 0.5, 1, 2, 4];
const USUAL_SPEED = 2; // index

export class Player extends EventTarget {
    constructor() {
        super();
        this.load = null;
        this.worker = null;
        this.opened = null; // promise of {looks, chapters, frames, sliders}
        this.about = null; // what it brought
        this.sound = new Sound();
        this.sync = new Sync();
        this.frame = -1; // shown
        this.shownAt = 0; // ms of performance.now()
        this.cost = 0; // of a frame, ms: a mean over the last few
        this.playing = false;
        this.hidden = false; // nobody looks: it waits, though it plays
        this.target = -1; // frame that is sought; -1: none
        this.look = 0;
        this.speed = USUAL_SPEED;
        this.marks = [-1, -1]; // of the loop
        this.figures = false;
        this.waiting = {}; // answers that are waited for, by type
    }

    tell(type, detail) {
        this.dispatchEvent(new CustomEvent(type, { detail }));
    }

    // --- start ------------------------------------------------------------------------------------

    // Begins to fetch; may be called at any time, before open too.
    prepare(onProgress) {
        this.load ??= new Load();
        if (onProgress) {
            this.load.onProgress = onProgress;
            onProgress(this.load.read, this.load.size);
        }
    }

    // Starts the thread and loads the world into it. Rejects with a text for the page.
    open() {
        this.prepare();
        this.opened ??= this.reallyOpen().catch((fault) => {
            this.close();
            throw fault;
        });
        return this.opened;
    }

    async reallyOpen() {
        const load = this.load;
        const [program, world] = await Promise.all([load.program, load.world]);
        this.worker = new Worker(new URL("./worker.js", import.meta.url), { type: "module" });
        this.worker.onmessage = ({ data }) => this.hear(data);
        this.worker.onerror = (event) => this.fail(`The drawing thread stopped: ${event.message}`);
        this.addMusic(load);
        this.about = await this.ask("opened", "open", {
            program, files: world.files, frames: world.frames, width: WIDTH, height: HEIGHT,
        });
        return this.about;
    }

    // Decodes the music as its two parts come. (A fault here is one of the network or of the file:
    // the picture goes on without.)
    addMusic(load) {
        const music = load.music.then(decode);
        this.music = music.then((buffer) => this.sound.setBuffer(buffer));
        this.allMusic = Promise.all([music, load.more]).then(async ([first, more]) => {
            this.sound.setBuffer(joinParts(first, await decode(more.bytes), more.overlap));
        });
        for (const promise of [this.music, this.allMusic]) {
            promise.catch((fault) => this.tell("quiet", { text: String(fault?.message ?? fault) }));
        }
    }

    // Ends the thread; what is loaded stays, unless loading has failed.
    close() {
        this.sound.stop();
        this.worker?.terminate();
        this.worker = this.opened = this.about = this.load = null;
        this.playing = false;
        this.frame = this.target = -1;
    }

    // Hands a canvas to the thread, under a name for use().
    addScreen(name, canvas) {
        const screen = canvas.transferControlToOffscreen();
        screen.width = WIDTH;
        screen.height = HEIGHT;
        this.worker.postMessage({ type: "screen", name, canvas: screen }, [screen]);
    }

    // --- what can be asked of it ------------------------------------------------------------------

    send(type, more = {}) {
        this.worker?.postMessage({ type, ...more });
    }

    // Sends a message and waits for the answer of a type.
    ask(answer, type, more = {}) {
        return new Promise((resolve, reject) => {
            (this.waiting[answer] ??= []).push({ resolve, reject });
            this.send(type, more);
        });
    }

    use(name) {
        this.send("use", { name });
    }

    play(on) {
        this.playing = on;
        this.sync = new Sync();
        this.mustSet = on;
        if (!on) {
            this.sound.stop();
        }
        this.send("play", { on: on && !this.hidden });
        this.tell("state");
    }

    // Goes to a frame, and plays on from there where it played.
    seek(frame) {
        this.target = Math.max(0, Math.min(frame, this.about.frames - 1));
        this.sound.stop();
        this.mustSet = true;
        this.send("seek", { frame: this.target });
        this.tell("winding", { frame: this.here, target: this.target });
    }

    // The frame that is shown, or is on its way.
    get here() {
        return this.target >= 0 ? this.target : Math.max(0, this.frame);
    }

    setLook(index) {
        this.look = index;
        this.send("look", { index });
        this.tell("state");
    }

    setSpeed(index) {
        this.speed = Math.max(0, Math.min(index, SPEEDS.length - 1));
        this.send("speed", { speed: SPEEDS[this.speed] });
        this.sound.stop();
        this.mustSet = this.playing;
        this.tell("state");
    }

    setFigures(on) {
        this.figures = on;
        this.send("figures", { on });
        this.tell("state");
    }

    // Marks the beginning of a loop, its end, no loop, by turns. Returns what it did.
    markLoop() {
        const here = this.here;
        if (this.marks[0] < 0) {
            this.marks = [here, -1];
        } else if (this.marks[1] < 0 && here > this.marks[0]) {
            this.marks = [this.marks[0], here];
        } else {
            this.marks = [-1, -1];
        }
        this.send("loop", { range: this.marks[1] >= 0 ? this.marks : null });
        this.tell("state");
        return this.marks;
    }

    // Nobody looks for a while: the picture waits, and with it the sound.
    hide(hidden) {
        this.hidden = hidden;
        if (this.playing) {
            this.send("play", { on: !hidden });
            this.mustSet = !hidden;
            if (hidden) {
                this.sound.stop();
            }
        }
    }

    // --- what it tells ----------------------------------------------------------------------------

    hear(data) {
        const { type, ...detail } = data;
        const waiting = this.waiting[type];
        if (waiting) {
            delete this.waiting[type];
            waiting.forEach(({ resolve }) => resolve(detail));
        }
        if (type === "frame") {
            this.onFrame(detail);
        } else if (type === "end") {
            this.playing = false;
            this.sound.stop();
        } else if (type === "fault") {
            this.fail(detail.text);
            return;
        }
        this.tell(type, detail);
    }

    fail(text) {
        const waiting = Object.values(this.waiting).flat();
        this.waiting = {};
        this.close();
        waiting.forEach(({ reject }) => reject(new Error(text)));
        if (!waiting.length) {
            this.tell("fault", { text });
        }
    }

    onFrame({ frame, at, ms, sought, gaveIn, playing }) {
        this.frame = frame;
        this.cost += sought ? 0 : (ms - this.cost) * 0.1;
        this.shownAt = at - performance.timeOrigin;
        if (sought) {
            this.target = -1;
        }
        // (A picture that was on its way when something else was asked for.)
        if (this.target >= 0 || !playing || !this.playing || this.hidden || this.speed !== USUAL_SPEED) {
            return;
        }
        const apart = this.apart();
        if (apart === null || this.mustSet || this.sync.note(apart, this.shownAt, gaveIn)) {
            this.setSound();
        }
    }

    setSound() {
        this.mustSet = !this.sound.playFrom(this.frame / FRAMES_A_SECOND, this.shownAt);
        this.sync.set(this.shownAt);
    }

    // By how many seconds the sound is ahead of the picture; null in silence.
    apart() {
        const position = this.sound.position(this.shownAt);
        return position === null ? null : position - this.frame / FRAMES_A_SECOND;
    }
}
