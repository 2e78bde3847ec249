// Holds the arithmetic of WebAssembly to that of the processor: the hashes that the native program
// prints, plain and in lanes. Usage: operations.mjs NATIVE_PROGRAM MODULE. The last line counts, a
// test an operation and form.
import {execFileSync} from "node:child_process";
import {instantiate} from "./show.mjs";

const [program, file] = process.argv.slice(2);
const functions = await instantiate(file);
const wrong = new Map(); // by operation and form: the first block that differs, or null
for (const line of execFileSync(program, {encoding: "ascii", maxBuffer: 1 << 26}).trim().split("\n")) {
    const [operation, block, hash, ...name] = line.split(" ");
    for (const lanes of name.join(" ") === "root" ? [0] : [0, 1]) {
        const key = `${name.join(" ")}, ${lanes === 1 ? "four lanes" : "plain"}`;
        const seen = BigInt.asUintN(64, functions.hash_of(Number(operation), Number(block), lanes));
        const same = seen.toString(16).padStart(16, "0") === hash;
        wrong.set(key, wrong.get(key) ?? (same ? null : block));
    }
}
let failed = 0;
for (const [key, block] of wrong) {
    if (block !== null) {
        ++failed;
        console.log(`${key}: block ${block} differs`);
    }
}
console.log(`${wrong.size - failed} passed, ${failed} failed`);
process.exit(failed > 0 || wrong.size === 0 ? 1 : 0);
