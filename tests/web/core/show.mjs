// The module of the web build in node: its functions, with texts and files made easy. The system
// calls that the C library wants are node's own.
import {readdirSync, readFileSync} from "node:fs";
import path from "node:path";
import {fileURLToPath} from "node:url";
import {WASI} from "node:wasi";

export const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../../..");
export const modulePath = path.join(root, "build/web-objects/ombrel.wasm");

// Names below the folder, with "/" between their parts.
export function filesBelow(folder, prefix = "") {
    return readdirSync(path.join(folder, prefix), {withFileTypes: true})
        .flatMap(entry => {
            const name = prefix + entry.name;
            return entry.isDirectory() ? filesBelow(folder, name + "/") : [name];
        })
        .sort();
}

// An instance of a module of ours, whatever it exports.
export async function instantiate(file = modulePath) {
    const wasi = new WASI({version: "preview1", returnOnExit: true});
    const module = await WebAssembly.compile(readFileSync(file));
    const instance = await WebAssembly.instantiate(module, {wasi_snapshot_preview1:
                                                                wasi.wasiImport});
    wasi.initialize(instance);
    return instance.exports;
}

export class Module {
    constructor(functions) {
        this.f = functions;
    }
    bytes(at, size) {
        return new Uint8Array(this.f.memory.buffer, at, size);
    }
    text(at) {
        const memory = new Uint8Array(this.f.memory.buffer);
        return new TextDecoder().decode(memory.subarray(at, memory.indexOf(0, at)));
    }
    // In memory of the module; to be freed by the caller.
    put(bytes) {
        const at = this.f.ombrel_allocate(bytes.length);
        this.bytes(at, bytes.length).set(bytes);
        return at;
    }
    withText(text, use) {
        const at = this.put(new TextEncoder().encode(text + "\0"));
        const result = use(at);
        this.f.ombrel_free(at);
        return result;
    }
    addFile(name, bytes) {
        this.withText(name, at => this.f.ombrel_add_file(at, this.put(bytes), bytes.length));
    }
    usePath(name) {
        return this.withText(name, at => this.f.ombrel_use_path(at)) === 1;
    }
    pictureHash() {
        return BigInt.asUintN(64, this.f.ombrel_picture_hash()).toString(16).padStart(16, "0");
    }
}

// With the data of the production, but the sound; not yet opened.
export async function load(file = modulePath, data = path.join(root, "data")) {
    const module = new Module(await instantiate(file));
    for (const name of filesBelow(data).filter(name => !name.startsWith("sfx/"))) {
        module.addFile(name, readFileSync(path.join(data, name)));
    }
    return module;
}
