// Replays the stored inputs of the fuzz targets that load files through the loaders as WebAssembly.
// A property that does not hold, or memory that is not there, ends the module. Usage: fuzz.mjs
// [FOLDER OF THE MODULES]. The last line counts, a test an input.
import {existsSync, readFileSync} from "node:fs";
import path from "node:path";
import {filesBelow, instantiate, Module, root} from "./show.mjs";

const build = process.argv[2] ?? path.join(root, "build/web-objects");
const slow = 2000; // ms; the fuzzer itself ends a target after 100 of processor time
let passed = 0, failed = 0;
for (const target of ["bmp", "cob", "line_reader", "track"]) {
    const module = new Module(await instantiate(path.join(build, `fuzz_${target}.wasm`)));
    const data = path.join(root, "fuzz/data");
    for (const name of filesBelow(data)) {
        module.addFile(name, readFileSync(path.join(data, name)));
    }
    for (const kind of ["corpus", "long"]) {
        const folder = path.join(root, "fuzz", kind, target);
        for (const name of existsSync(folder) ? filesBelow(folder) : []) {
            const input = readFileSync(path.join(folder, name));
            const began = performance.now();
            try {
                const at = module.put(input);
                module.f.run_input(at, input.length);
                module.f.ombrel_free(at);
                const ms = performance.now() - began;
                if (ms > slow) {
                    throw new Error(`took ${ms.toFixed(0)} ms`);
                }
                ++passed;
            } catch (error) {
                ++failed;
                console.log(`${target} ${name}: ${error.message}`);
            }
        }
    }
}
console.log(`${passed} passed, ${failed} failed`);
process.exit(failed > 0 || passed === 0 ? 1 : 0);
