// The thread that draws: holds the core, paces it, and puts its pictures on the canvases. The page
// tells it what to do by messages {type, ...} and hears of every picture. A frame costs up to its
// 25 ms, a search among frames seconds: here neither holds up a click, the bar or the sound.
import { Core } from "./core.js";
import { Pacer } from "./pacer.js";

const SLICE_MS = 30; // of a search, between two looks at the messages
const FIGURES_MS = 500; // between two counts of a frame, while it plays

let core = null;
let screens = {}; // name: context of a canvas
let screen = "stage"; // that is drawn to
let playing = false;
let target = -1; // frame that is sought; -1: none
let look = 0;
let loop = null; // [first, last] frame
let figures = false;
let countedAt = 0;
let counted = null;
let lastMs = 0; // of the last frame
let image = null; // ImageData over the core's picture
const pacer = new Pacer();
const rate = { frames: 0, from: 0, value: 0 };

// Milliseconds that mean the same on the page.
const now = () => performance.timeOrigin + performance.now();

function tell(type, more = {}) {
    postMessage({ type, ...more });
}

// --- one picture ---------------------------------------------------------------------------------

function show(more = {}) {
    const pixels = core.picture(look);
    if (!pixels) {
        return;
    }
    // (The core's memory moves when it grows.)
    if (!image || image.data.buffer !== pixels.buffer || image.data.byteOffset !== pixels.byteOffset) {
        image = new ImageData(pixels, core.width, core.height);
    }
    screens[screen].putImageData(image, 0, 0);
    const legend = look === 0 ? [] : core.legend();
    tell("frame", { frame: core.shown(), at: now(), ms: lastMs, look, legend, playing, ...more });
    count();
}

function count() {
    const t = performance.now();
    if (!figures || (playing && t - countedAt < FIGURES_MS)) {
        return;
    }
    counted = core.count();
    countedAt = t;
    tell("figures", { ...counted, frame: core.shown(), ms: lastMs, rate: playing ? rate.value : 0 });
}

function step() {
    const start = performance.now();
    const drawn = core.step();
    lastMs = performance.now() - start;
    return drawn;
}

// --- playing -------------------------------------------------------------------------------------

const nextTurn = self.requestAnimationFrame ? (call) => self.requestAnimationFrame(call)
                                            : (call) => setTimeout(() => call(performance.now()), 8);
let turning = false;

function turn() {
    if (!turning && playing && target < 0) {
        turning = true;
        nextTurn(onTurn);
    }
}

function onTurn(t) {
    turning = false;
    if (!playing || target >= 0) {
        return;
    }
    const { steps, gaveIn } = pacer.due(t);
    const start = performance.now();
    let drawn = 0;
    while (drawn < steps && target < 0) {
        if (loop && core.shown() >= loop[1]) {
            seek(loop[0]);
        } else if (core.ended() || !step()) {
            playing = false;
            tell("end");
        } else {
            ++drawn;
            continue;
        }
        break;
    }
    if (drawn > 0 && target < 0) {
        countRate(drawn);
        show({ gaveIn });
        pacer.spent(drawn, performance.now() - start);
    }
    turn();
}

function countRate(drawn) {
    const t = performance.now();
    rate.frames += drawn;
    if (t - rate.from > FIGURES_MS) {
        rate.value = (rate.frames * 1000) / (t - rate.from);
        rate.frames = 0;
        rate.from = t;
    }
}

function play(on) {
    playing = on;
    pacer.start();
    rate.frames = 0;
    rate.from = performance.now();
    turn();
}

// --- seeking -------------------------------------------------------------------------------------

const breath = new MessageChannel();
breath.port1.onmessage = () => wind();

function seek(frame) {
    const winding = target >= 0;
    target = Math.max(0, Math.min(frame, core.frames - 1));
    if (!winding) {
        breath.port2.postMessage(0);
    }
}

// A slice of the search, and a breath for the messages.
function wind() {
    if (target < 0) {
        return;
    }
    const start = performance.now();
    const reached = core.seek(target, SLICE_MS);
    if (reached !== target && !core.ended()) {
        tell("winding", { frame: reached, target });
        breath.port2.postMessage(0);
        return;
    }
    target = -1;
    lastMs = performance.now() - start;
    pacer.start();
    show({ sought: true });
    turn();
}

// --- messages ------------------------------------------------------------------------------------

const answers = {
    async open({ program, files, frames, width, height }) {
        core = await Core.open(program, files, { frames, width, height });
        tell("opened", { looks: core.looks, chapters: core.chapters, frames, sliders: core.sliders });
    },
    screen({ name, canvas }) {
        screens[name] = canvas.getContext("2d", { alpha: false });
    },
    use({ name }) {
        screen = name;
        if (core.shown() >= 0 && target < 0) {
            show();
        }
    },
    play({ on }) {
        play(on);
    },
    seek({ frame }) {
        seek(frame);
    },
    look({ index }) {
        look = index;
        if (!playing && core.shown() >= 0 && target < 0) {
            show();
        }
    },
    speed({ speed }) {
        pacer.setSpeed(speed);
        pacer.start();
    },
    loop({ range }) {
        loop = range;
    },
    figures({ on }) {
        figures = on;
        countedAt = 0;
        if (core.shown() >= 0 && target < 0) {
            count();
        }
    },
    sample({ values }) {
        const pixels = core.sample(values);
        if (pixels) {
            screens[screen].putImageData(new ImageData(pixels, core.width, core.height), 0, 0);
            tell("sample", { values });
        }
    },
    object({ x, y }) {
        tell("object", { x, y, frame: core.shown(), ...core.object(x, y) });
    },
    hash({ id }) {
        tell("hash", { id, frame: core.shown(), hash: core.hash() });
    },
    async screenshot() {
        const canvas = screens[screen].canvas;
        const [frame, shownLook] = [core.shown(), look];
        const blob = await canvas.convertToBlob({ type: "image/png" });
        tell("screenshot", { blob, frame, look: shownLook });
    },
    // Plays on from here, unseen and without a pause, and tells of every frame its hash and the
    // milliseconds that it took: for tests.
    async hashes({ count: most }) {
        const list = [];
        while (list.length < most && !core.ended() && step()) {
            list.push([core.shown(), core.hash(), lastMs]);
        }
        tell("hashes", { list, memory: core.f.memory.buffer.byteLength });
    },
};

onmessage = async ({ data }) => {
    try {
        await answers[data.type](data);
    } catch (fault) {
        playing = false;
        target = -1;
        tell("fault", { text: String(fault?.message ?? fault) });
    }
};
