// How long frames take as WebAssembly, plain and in vectors, beside the native paths: one table.
// Rounds in turns, so that a busy machine disturbs all alike; the median round counts. Needs the
// builds release and web. Usage: node bench/web.mjs [--frames FROM:TO] [--rounds N]
import {execFileSync} from "node:child_process";
import path from "node:path";
import {fileURLToPath} from "node:url";
import {parseArgs} from "node:util";

const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "..");
const {values} = parseArgs({options: {
    frames: {type: "string", default: "300:600"},
    rounds: {type: "string", default: "5"},
}});
const [from, to] = values.frames.split(":").map(Number);

function run(command, args, env = {}) {
    return execFileSync(command, args, {cwd: root, encoding: "utf8", env: {...process.env, ...env}});
}
// { mean, slow } of a round, in ms: the mean, and what 99 of 100 frames are not slower than.
function inNode(name) {
    const text = run("node", ["--no-warnings", "tests/web/core/frames.mjs", "--time", "--path", name,
                              "--frames", `${from}:${to}`]);
    const [, mean, slow] = text.match(/mean ([\d.]+) ms.*99 % ([\d.]+)/);
    return {mean: Number(mean), slow: Number(slow)};
}
function native(name) {
    const text = run("build/release/larkfen-player",
                     ["--timedemo", "--json", "--data", "data", "--from", from, "--to", to - 1].map(String),
                     {RASTER_USE: name});
    const all = JSON.parse(text).parts.find(part => part.first === from && part.last === to - 1);
    return {mean: 1000 / all.frames_per_second, slow: all.p99_ms};
}
const forms = [
    ["WebAssembly, plain", () => inNode("scalar")],
    ["WebAssembly, vectors", () => inNode("wasm")],
    ["native, plain", () => native("scalar")],
    ["native, SSE4.1", () => native("sse")],
    ["native, AVX2", () => native("avx2")],
];
const rounds = forms.map(() => []);
for (let round = 0; round < Number(values.rounds); ++round) {
    forms.forEach(([, time], i) => rounds[i].push(time()));
}
const median = numbers => numbers.sort((a, b) => a - b)[numbers.length >> 1];
console.log(`frames ${from} to ${to - 1}, ${values.rounds} rounds`.padEnd(34) + "mean ms   99 % ms");
forms.forEach(([name], i) => {
    const mean = median(rounds[i].map(r => r.mean)), slow = median(rounds[i].map(r => r.slow));
    console.log(name.padEnd(34) + mean.toFixed(2).padStart(7) + slow.toFixed(2).padStart(10));
});
