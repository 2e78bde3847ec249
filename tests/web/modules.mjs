// The parts of the page that need no browser: pacing, sound against picture, the packed file, keys and
// places. Usage: node modules.mjs. The last line counts.
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { spawnSync } from "node:child_process";
import { tmpdir } from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { gunzipSync } from "node:zlib";
import { chapterFrom, frameOfHash, hashOfFrame, timeText } from "../../web/moment.js";
import { PackFault, PackReader, filesOf, unpack } from "../../web/pack.js";
import { Pacer } from "../../web/pacer.js";
import { overlapOf } from "../../web/sound.js";
import { Sync } from "../../web/sync.js";
import { expect, report, run, same } from "./suite.mjs";

const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../..");

// --- pacing --------------------------------------------------------------------------------------

// Numbers between 0 and 1, the same every time.
function random(seed) {
    let state = seed;
    return () => {
        state = (Math.imul(state, 1664525) + 1013904223) >>> 0;
        return state / 2 ** 32;
    };
}

// Frames drawn at each callback of a screen of so many Hz, for so many seconds; callbacks come up to
// `jitter` ms early or late.
function paced(hertz, seconds, jitter = 0, pacer = new Pacer()) {
    const number = random(hertz);
    const out = [];
    for (let i = 0; i <= hertz * seconds; ++i) {
        out.push(pacer.due(5000 + (i * 1000) / hertz + (number() * 2 - 1) * jitter));
    }
    return out;
}

const sum = (list) => list.reduce((all, { steps }) => all + steps, 0);

const pacing = [30, 40, 60, 90, 144, 165, 240].flatMap((hertz) => [0, 1.5].map((jitter) =>
    [`pacing: 40 frames a second at ${hertz} Hz${jitter ? ", callbacks 1.5 ms off" : ""}`, () => {
        const turns = paced(hertz, 100, jitter);
        const frames = sum(turns);
        expect(Math.abs(frames - 4001) <= 1, `${frames} frames in 100 s`);
        expect(turns.every(({ gaveIn }) => !gaveIn), "the clock gave in");
        const most = Math.ceil(40 / hertz) + (hertz === 40 && jitter ? 1 : 0);
        expect(turns.every(({ steps }) => steps <= most), `more than ${most} frames at once`);
        // Never behind or ahead by more than a frame.
        let drawn = 0;
        turns.forEach(({ steps }, index) => {
            drawn += steps;
            const due = 1 + (index * 40) / hertz;
            expect(Math.abs(drawn - due) <= 1.2, `turn ${index}: ${drawn} frames, ${due} due`);
        });
    }]));

pacing.push(
    ["pacing: the first callback draws a frame", () => same(new Pacer().due(1e9).steps, 1, "frames")],
    ["pacing: a late callback is made up for, up to four frames", () => {
        for (const [late, steps] of [[50, 2], [75, 3], [100, 4], [110, 4]]) {
            const pacer = new Pacer();
            pacer.due(0);
            same(pacer.due(late), { steps, gaveIn: false }, `${late} ms late`);
        }
    }],
    ["pacing: behind more than four frames the clock gives in", () => {
        const pacer = new Pacer();
        pacer.due(0);
        same(pacer.due(130), { steps: 4, gaveIn: true }, "130 ms late");
        same(pacer.due(155), { steps: 1, gaveIn: false }, "the next one"); // nothing is owed any more
    }],
    ["pacing: after an hour in a hidden tab four frames, then as ever", () => {
        const pacer = new Pacer();
        paced(60, 1, 0, pacer);
        const back = 3.6e6;
        same(pacer.due(back), { steps: 4, gaveIn: true }, "at the return");
        let frames = 0;
        for (let i = 1; i <= 600; ++i) {
            frames += pacer.due(back + (i * 1000) / 60).steps;
        }
        expect(Math.abs(frames - 400) <= 1, `${frames} frames in the 10 s behind it`);
    }],
    ["pacing: a clock that goes back draws nothing and goes on", () => {
        const pacer = new Pacer();
        pacer.due(1000);
        same(pacer.due(900).steps, 0, "frames");
        same(pacer.due(925).steps, 1, "frames 25 ms later");
    }],
    ["pacing: a machine that is too slow plays slower, not in jumps", () => {
        const pacer = new Pacer();
        let now = 0;
        let worst = 0;
        for (let i = 0; i < 400; ++i) {
            const { steps } = pacer.due(now);
            pacer.spent(steps, steps * 40);
            now += Math.max(steps * 40, 1000 / 60);
            worst = i > 2 ? Math.max(worst, steps) : worst;
        }
        same(worst, 1, "frames at once");
    }],
    ["pacing: speeds from a quarter to four", () => {
        for (const speed of [0.25, 0.5, 1, 2, 4]) {
            const pacer = new Pacer();
            pacer.setSpeed(speed);
            const frames = sum(paced(60, 100, 0, pacer));
            expect(Math.abs(frames - 4000 * speed) <= 2, `${frames} frames at speed ${speed}`);
        }
    }],
);

// --- sound against picture -----------------------------------------------------------------------

const FRAME = 25;

function heard(sync, seconds, from, count) {
    const asked = [];
    for (let i = 0; i < count; ++i) {
        if (sync.note(typeof seconds === "function" ? seconds(i) : seconds, from + i * FRAME)) {
            asked.push(from + i * FRAME);
        }
    }
    return asked;
}

const sound = [
    ["sound: what is close stays", () => {
        const sync = new Sync();
        sync.set(0);
        const number = random(1);
        same(heard(sync, () => (number() - 0.5) * 0.03, 0, 4000), [], "asked to be set");
    }],
    ["sound: one late frame says nothing", () => {
        const sync = new Sync();
        sync.set(0);
        same(heard(sync, (i) => (i % 10 === 5 ? 0.12 : 0.002), 0, 1000), [], "asked to be set");
    }],
    ["sound: 20 ms apart is set again, within half a second", () => {
        for (const seconds of [0.02, -0.02, 0.5, -3]) {
            const sync = new Sync();
            sync.set(0);
            const [first] = heard(sync, seconds, 0, 40);
            expect(first <= 500, `${seconds} s apart: set at ${first} ms`);
        }
    }],
    ["sound: where the clock gave in it is set at once", () => {
        const sync = new Sync();
        sync.set(0);
        same(heard(sync, 0, 0, 40), [], "asked to be set");
        same(sync.note(0.13, 1000, true), true, "the clock gave in");
        sync.set(1000);
        same(sync.note(0.13, 1025, true), false, "again, a frame later");
    }],
    ["sound: a slow machine's is set ever more rarely, not at each frame", () => {
        const sync = new Sync();
        sync.set(0);
        let sets = 0;
        let setAt = 0;
        for (let at = 0; at < 60000; at += 40) {
            // 15 ms are lost with each frame.
            if (sync.note((at - setAt) * 0.375e-3, at)) {
                sync.set(at);
                setAt = at;
                ++sets;
            }
        }
        expect(sets >= 8 && sets <= 16, `${sets} times in a minute`);
    }],
    ["sound: two parts are joined where they are the same, whatever was trimmed", () => {
        const number = random(7);
        const whole = Float32Array.from({ length: 60000 }, () => number() - 0.5);
        for (const trimmed of [0, 1, 528, 1105, 2257]) {
            const first = whole.subarray(0, 40000);
            const second = whole.slice(17000 + trimmed);
            second.subarray(0, 3000).fill(0.1); // where a decoder is not yet itself
            same(overlapOf(first, second, 23040), 23000 - trimmed, `${trimmed} samples trimmed`);
        }
        same(overlapOf(whole.subarray(0, 30000), Float32Array.from({ length: 30000 }, number), 23040), null,
             "two parts that have nothing in common");
    }],
];

// --- the packed file -----------------------------------------------------------------------------

const work = mkdtempSync(path.join(tmpdir(), "ombrel-web-"));
process.on("exit", () => rmSync(work, { recursive: true, force: true }));

function makeFolder(...more) {
    const wasm = path.join(work, "program.wasm");
    writeFileSync(wasm, Uint8Array.from([0, 97, 115, 109, 1, 0, 0, 0]));
    return spawnSync("/usr/bin/python3", [path.join(root, "tools/web_folder.py"), "--wasm", wasm,
                                          "--out", path.join(work, "page"), ...more], { encoding: "utf8" });
}

const made = makeFolder();
const packed = made.status === 0 ? new Uint8Array(readFileSync(path.join(work, "page/ombrel.pack"))) : new Uint8Array();

function readIn(bytes, piece) {
    const reader = new PackReader();
    const parts = [];
    for (let at = 0; at < bytes.length; at += piece) {
        parts.push(...reader.push(bytes.subarray(at, at + piece)));
    }
    reader.end();
    return { reader, parts };
}

function faultOf(act) {
    try {
        act();
    } catch (fault) {
        expect(fault instanceof PackFault, `another fault: ${fault.stack}`);
        return fault.message;
    }
    return "";
}

const pack = [
    ["pack: the folder is made, with a line for each file", () => {
        same(made.status, 0, `web_folder.py said ${made.stderr}; its exit code`);
        expect(/^ombrel\.pack +\d+/m.test(made.stdout), "no line for ombrel.pack");
    }],
    ["pack: every file comes out as it went in, whatever the pieces", async () => {
        for (const piece of [997, 65536, 1 << 30]) {
            const { reader, parts } = readIn(packed, piece);
            same(reader.index.frames, 6017, "frames");
            same(parts.map(({ name }) => name), ["world", "music", "more"], "parts");
            const files = filesOf(parts[0], await unpack(parts[0]));
            expect(files.length > 40, `${files.length} files`);
            for (const [name, bytes] of piece === 997 ? files : files.slice(0, 3)) {
                const inWorld = name.startsWith("data/");
                expect(!inWorld || readFileSync(path.join(root, name)).equals(bytes), `${name} differs`);
            }
        }
    }],
    ["pack: it tells the hash of every picture", async () => {
        const [world] = readIn(packed, 1 << 30).parts;
        const [, bytes] = filesOf(world, await unpack(world)).find(([name]) => name === "hashes");
        const lines = gunzipSync(readFileSync(path.join(root, "tests/scenario/frames.txt.gz"))).toString().trim().split("\n");
        const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.length);
        const hashes = lines.map((_, i) => view.getBigUint64(8 * i, true).toString(16).padStart(16, "0"));
        same(hashes.length * 8, bytes.length, "bytes");
        same(hashes.join(), lines.map((line) => line.split(" ").at(-1)).join(), "hashes");
    }],
    ["pack: the world stands first, and the first minute of the music before the rest", () => {
        const { reader, parts } = readIn(packed, 4096);
        const [world, music] = reader.index.parts;
        const half = new PackReader();
        const soon = half.push(packed.subarray(0, reader.index.start + world.packed + music.packed));
        same(soon.map(({ name }) => name), ["world", "music"], "parts of the first bytes");
        expect(soon[0].bytes.length + soon[1].bytes.length < 0.75 * packed.length, "the rest is small");
        const music0 = readFileSync(path.join(root, "data/sfx/soundtrack.mp3"));
        for (const part of parts.slice(1)) {
            expect(music0.includes(part.bytes), `${part.name} is not a piece of the soundtrack`);
        }
    }],
    ["pack: one that is cut off, too long, of another kind or broken is named", () => {
        expect(/cut off: 3000000 of \d+ bytes came/.test(faultOf(() => readIn(packed.subarray(0, 3e6), 65536))), "cut");
        expect(/cut off after 7 bytes/.test(faultOf(() => readIn(packed.subarray(0, 7), 65536))), "cut in its head");
        const long = new Uint8Array(packed.length + 5);
        long.set(packed);
        expect(/5 bytes too long/.test(faultOf(() => readIn(long, 65536))), "too long");
        expect(/not a packed file/.test(faultOf(() => readIn(new TextEncoder().encode("<!doctype html>"), 64))), "html");
        const broken = packed.slice(0, 4000);
        broken[20] = 0;
        expect(/index is broken/.test(faultOf(() => readIn(broken, 4000))), "index");
    }],
    ["pack: a part with a wrong byte is refused", async () => {
        const { parts } = readIn(packed, 65536);
        parts[0].bytes[1000] ^= 255;
        let said = "";
        await unpack(parts[0]).catch((fault) => {
            said = fault.message;
        });
        expect(/part "world" is broken/.test(said), `said "${said}"`);
    }],
    ["pack: what is missing is named when the folder is made", () => {
        for (const [option, what] of [["--data", "data"], ["--wasm", "wasm"], ["--frames", "frames"],
                                      ["--manifest", "manifest"]]) {
            const { status, stderr } = makeFolder(option, path.join(work, `no-${what}`));
            same(status, 1, `exit code without ${what}`);
            expect(stderr.startsWith("error: ") && stderr.includes(`no-${what}`) && !stderr.includes("Traceback"),
                   `without ${what}: ${stderr}`);
        }
    }],
    ["pack: a soundtrack that is none is named", () => {
        const data = path.join(work, "data");
        spawnSync("cp", ["-r", path.join(root, "data"), data]);
        for (const [content, said] of [["no music at all", /soundtrack\.mp3: no MPEG/],
                                       [readFileSync(path.join(root, "data/sfx/soundtrack.mp3")).subarray(0, 300000),
                                        /soundtrack\.mp3: (cut off|shorter)/]]) {
            writeFileSync(path.join(data, "sfx/soundtrack.mp3"), content);
            const { status, stderr } = makeFolder("--data", data);
            same(status, 1, "exit code");
            expect(said.test(stderr), stderr);
        }
    }],
    ["pack: the same inputs give the same bytes", () => {
        const again = path.join(work, "again");
        same(makeFolder("--out", again).status, 0, "exit code");
        for (const name of ["ombrel.pack", "sw.js", "load.js", "index.html"]) {
            expect(readFileSync(path.join(again, name)).equals(readFileSync(path.join(work, "page", name))), name);
        }
        expect(!readFileSync(path.join(again, "sw.js"), "utf8").includes("@"), "sw.js still has a place to fill");
    }],
];

// --- places --------------------------------------------------------------------------------------

const CHAPTERS = [["dawn", 0], ["gates", 192], ["parasol", 704], ["end", 5956]].map(([name, frame]) => ({ name, frame }));

const places = [
    ["places: times and addresses", () => {
        same([0, 1, 1810, 2400, 6016].map(timeText), ["0:00.00", "0:00.03", "0:45.25", "1:00.00", "2:30.40"], "times");
        same(["#f=1810", "#t=62.5", "#f=0", "", "#f=", "#f=-1", "#f=1e9", "#walk", "#f=12345678"].map(frameOfHash),
             [1810, 2500, 0, null, null, null, null, null, null], "frames of addresses");
        same(frameOfHash(hashOfFrame(77)), 77, "there and back");
    }],
    ["places: chapters as in the player's window", () => {
        same([0, 191, 192, 5956, 6016].map((frame) => chapterFrom(CHAPTERS, frame, 1)), [192, 192, 704, null, null], "next");
        same([0, 20, 192, 230, 240, 6016].map((frame) => chapterFrom(CHAPTERS, frame, -1)), [0, 0, 0, 0, 192, 5956], "back");
    }],
];

report(await run([...pacing, ...sound, ...pack, ...places], { only: process.argv[2] ?? "" }));
