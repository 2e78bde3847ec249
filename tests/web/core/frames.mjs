// Plays the production in node and prints a line a frame, `frame N hash HASH`. With --hold it holds
// the frames to the stored ones instead, and with --time it prints how long they took.
// Usage: frames.mjs [--path NAME] [--frames FROM:TO] [--hold | --time] [--module FILE]
import {load, modulePath, root} from "./show.mjs";
import {readFileSync} from "node:fs";
import path from "node:path";
import {parseArgs} from "node:util";
import {gunzipSync} from "node:zlib";

const {values} = parseArgs({options: {
    path: {type: "string", default: ""},
    frames: {type: "string", default: "0:100000"},
    hold: {type: "boolean", default: false},
    time: {type: "boolean", default: false},
    module: {type: "string", default: modulePath},
}});
const [from, to] = values.frames.split(":").map(Number);
const show = await load(values.module);
if (!show.usePath(values.path)) {
    console.error(`the path ${values.path} cannot be had`);
    process.exit(2);
}
const opening = performance.now();
if (show.f.ombrel_open(640, 480, 1 << 20) !== 1) {
    console.error("the show does not open");
    process.exit(1);
}
const opened = performance.now() - opening;
if (from > 0) {
    show.f.ombrel_seek(from - 1, from);
}
const times = [];
const lines = [];
for (let frame = from; frame < to; ++frame) {
    const before = performance.now();
    if (show.f.ombrel_step() !== 1) {
        break;
    }
    times.push(performance.now() - before);
    if (!values.time) {
        lines.push(`frame ${frame} hash ${show.pictureHash()}\n`);
    }
}
// The stored hashes of the frames asked for, as lines of ours.
function stored() {
    const text = gunzipSync(readFileSync(path.join(root, "tests/scenario/frames.txt.gz"))).toString();
    return text.trimEnd().split("\n").slice(from, to).map(line => {
        const words = line.split(" ");
        return `frame ${words[1]} hash ${words.at(-1)}\n`;
    });
}
if (values.hold) {
    const wanted = stored();
    const wrong = wanted.findIndex((line, i) => line !== lines[i]);
    const good = wrong < 0 && wanted.length === lines.length && wanted.length > 0;
    console.log(good ? `${wanted.length} frames as stored` :
                wrong >= 0 ? `FAILED first difference: frame ${from + wrong}` :
                `FAILED ${lines.length} frames, not ${wanted.length}`);
    process.exit(good ? 0 : 1);
}
process.stdout.write(lines.join(""));
if (values.time) {
    const sorted = times.slice().sort((a, b) => a - b);
    const mean = times.reduce((a, b) => a + b) / times.length;
    console.log(`${times.length} frames, opened in ${opened.toFixed(0)} ms; mean ` +
                `${mean.toFixed(2)} ms, median ${sorted[sorted.length >> 1].toFixed(2)}, 99 % ` +
                `${sorted[Math.floor(sorted.length * 0.99)].toFixed(2)}, longest ` +
                `${sorted.at(-1).toFixed(2)}; memory ${show.f.memory.buffer.byteLength >> 20} MiB`);
}
