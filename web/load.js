// Fetches the program and its data once for the whole page, tells how far it is, and keeps both for
// visits without a network. Used by player.js.
import { PackFault, PackReader, filesOf, unpack } from "./pack.js";

// Names the file and says what is wrong, in words for whoever reads the page.
export class LoadFault extends Error {}

// The store that sw.js reads. Its name, written here and there when the folder is assembled, is
// that of this build.
const STORE = `ombrel ${new URL("./", import.meta.url)} @build@`;

// Files lie beside this one, wherever the page is that uses it.
const address = (name) => new URL(name, import.meta.url).href;

async function stored(name) {
    try {
        return await (await caches.open(STORE)).match(address(name));
    } catch {
        return undefined; // no store: private window, plain http
    }
}

async function store(name, blob, type) {
    try {
        await (await caches.open(STORE)).put(address(name), new Response(blob, { headers: { "content-type": type } }));
    } catch {
        // It works without; then only with a network.
    }
}

async function get(name) {
    const kept = await stored(name);
    if (kept) {
        return { response: kept, kept: true };
    }
    let response;
    try {
        response = await fetch(address(name));
    } catch {
        throw new LoadFault(`${name} could not be fetched: the network is gone or the server does not answer.`);
    }
    if (!response.ok) {
        throw new LoadFault(`${name} is missing on the server (it answers ${response.status}).`);
    }
    return { response, kept: false };
}

// The compiled program.
async function loadProgram(name) {
    const { response, kept } = await get(name);
    const bytes = await response.arrayBuffer();
    let program;
    try {
        program = await WebAssembly.compile(bytes);
    } catch {
        throw new LoadFault(`${name} is broken or cut off.`);
    }
    if (!kept) {
        await store(name, new Blob([bytes]), "application/wasm");
    }
    return program;
}

// Reads the packed file. onPart(part, unpacked bytes) as each one is whole, onProgress(read, size).
async function loadPack(name, onPart, onProgress) {
    const { response, kept } = await get(name);
    const reader = new PackReader();
    const chunks = [];
    const stream = response.body.getReader();
    try {
        for (;;) {
            const { done, value } = await stream.read();
            if (done) {
                break;
            }
            chunks.push(value);
            for (const part of reader.push(value)) {
                onPart(part, await unpack(part), reader.index);
            }
            onProgress(reader.read, reader.size);
        }
        reader.end();
    } catch (fault) {
        if (fault instanceof PackFault) {
            throw new LoadFault(`${name} is broken: ${fault.message}.`);
        }
        throw new LoadFault(`${name} broke off after ${reader.read} bytes: the network is gone.`);
    }
    if (!kept) {
        await store(name, new Blob(chunks), "application/octet-stream");
    }
}

// Everything that the show is made of. Each promise is there as soon as its part is; `whole` is the
// end of all. onProgress(read, size) may be set at any time.
export class Load {
    constructor(onProgress = () => {}) {
        this.onProgress = onProgress;
        this.read = this.size = 0;
        const parts = {};
        const promise = (name) => {
            const made = new Promise((resolve, reject) => {
                parts[name] = { resolve, reject };
            });
            made.catch(() => {}); // whoever waits for it hears of it
            return made;
        };
        this.program = loadProgram("ombrel.wasm");
        this.program.catch(() => {});
        this.world = promise("world"); // {files, frames}
        this.music = promise("music"); // MP3 bytes, the first part
        this.more = promise("more"); // {bytes, overlap}, the second
        this.whole = loadPack(
            "ombrel.pack",
            (part, bytes, index) => {
                parts[part.name]?.resolve(
                    part.name === "world" ? { files: filesOf(part, bytes), frames: index.frames }
                    : part.name === "more" ? { bytes, overlap: part.overlap }
                    : bytes);
            },
            (read, size) => {
                [this.read, this.size] = [read, size];
                this.onProgress(read, size);
            });
        this.whole.catch((fault) => {
            for (const part of Object.values(parts)) {
                part.reject(fault);
            }
        });
    }
}
