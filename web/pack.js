// The packed file of data, ombrel.pack, read while it comes. Little-endian:
//
//     8 bytes  "OMBREL1\n"
//     4 bytes  length of the index
//     index    JSON: {"frames": 6017, "parts": [{"name", "size", "packed", "gzip", "files"}]}
//     parts    one behind the other, in the order of the index, `packed` bytes each
//
// A part is one gzip stream (gzip true) or stands as it is. Its files, [[name, size], ...], stand one
// behind the other in what comes out. The last file of the world, "hashes", is the hash of every
// picture, 8 bytes each. tools/web_folder.py writes it; used by load.js.

const MAGIC = "OMBREL1\n";
const HEAD = 12;
const LONGEST_INDEX = 1 << 20;

export class PackFault extends Error {}

export class PackReader {
    constructor() {
        this.chunks = [];
        this.held = 0; // bytes in chunks
        this.index = null;
        this.next = 0; // part
        this.read = 0; // bytes, all in all
    }

    // Takes bytes as they come. Returns the parts that are whole now: [{...of the index, bytes}].
    push(chunk) {
        this.chunks.push(chunk);
        this.held += chunk.length;
        this.read += chunk.length;
        const whole = [];
        if (!this.index && !this.readIndex()) {
            return whole;
        }
        while (this.next < this.index.parts.length && this.held >= this.index.parts[this.next].packed) {
            const part = this.index.parts[this.next++];
            whole.push({ ...part, bytes: this.take(part.packed) });
        }
        return whole;
    }

    // Bytes of the whole file; 0 while that is not known.
    get size() {
        return this.index ? this.index.start + this.index.parts.reduce((sum, part) => sum + part.packed, 0) : 0;
    }

    // To be called behind the last byte.
    end() {
        if (!this.index || this.next < this.index.parts.length) {
            throw new PackFault(this.index ? `cut off: ${this.read} of ${this.size} bytes came`
                                           : `cut off after ${this.read} bytes`);
        }
        if (this.held > 0) {
            throw new PackFault(`${this.held} bytes too long`);
        }
    }

    readIndex() {
        if (this.held < HEAD) {
            return false;
        }
        const head = this.join();
        if (String.fromCharCode(...head.subarray(0, 8)) !== MAGIC) {
            throw new PackFault("not a packed file of this version");
        }
        const length = new DataView(head.buffer, head.byteOffset).getUint32(8, true);
        if (length > LONGEST_INDEX) {
            throw new PackFault("its index is broken");
        }
        if (this.held < HEAD + length) {
            return false;
        }
        this.take(HEAD);
        try {
            this.index = JSON.parse(new TextDecoder().decode(this.take(length)));
        } catch {
            throw new PackFault("its index is broken");
        }
        this.index.start = HEAD + length;
        return true;
    }

    join() {
        const all = new Uint8Array(this.held);
        let at = 0;
        for (const chunk of this.chunks) {
            all.set(chunk, at);
            at += chunk.length;
        }
        this.chunks = [all];
        return all;
    }

    take(count) {
        const all = this.join();
        this.chunks = [all.subarray(count)];
        this.held -= count;
        return all.slice(0, count);
    }
}

// What a part holds, unpacked: one Uint8Array.
export async function unpack(part) {
    let bytes = part.bytes;
    if (part.gzip) {
        const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
        try {
            bytes = new Uint8Array(await new Response(stream).arrayBuffer());
        } catch {
            throw new PackFault(`part "${part.name}" is broken`);
        }
    }
    if (bytes.length !== part.size) {
        throw new PackFault(`part "${part.name}" has ${bytes.length} bytes, not ${part.size}`);
    }
    return bytes;
}

// [[name, Uint8Array]] of an unpacked part.
export function filesOf(part, bytes) {
    const files = [];
    let at = 0;
    for (const [name, size] of part.files) {
        files.push([name, bytes.subarray(at, at + size)]);
        at += size;
    }
    if (at !== bytes.length) {
        throw new PackFault(`the files of part "${part.name}" are not as long as the part`);
    }
    return files;
}
