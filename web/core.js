// The core: ombrel.wasm, its functions with texts and pictures made easy. One show at a time. Used by
// worker.js.

const SNAPSHOT_BYTES = 200 << 20; // of states kept for seeking: with the rest below 400 MiB
const FRAMES_A_LOOK = 2; // drawn between two looks at the clock, while seeking
const FOLDER = "data/";

// The few system calls that the C library wants. The core asks for no files and has no terminal:
// what it prints goes to the console.
function systemCalls(memory) {
    const NO_SUCH = 8; // errno of a bad file descriptor
    let line = "";
    return {
        environ_sizes_get(count, size) {
            const view = new DataView(memory().buffer);
            view.setUint32(count, 0, true);
            view.setUint32(size, 0, true);
            return 0;
        },
        environ_get: () => 0,
        fd_close: () => NO_SUCH,
        fd_seek: () => NO_SUCH,
        fd_fdstat_get: () => NO_SUCH,
        fd_write(file, pieces, count, written) {
            const view = new DataView(memory().buffer);
            let size = 0;
            for (let i = 0; i < count; ++i) {
                const [at, length] = [view.getUint32(pieces + 8 * i, true), view.getUint32(pieces + 8 * i + 4, true)];
                line += new TextDecoder().decode(new Uint8Array(memory().buffer, at, length).slice());
                size += length;
            }
            view.setUint32(written, size, true);
            const lines = line.split("\n");
            line = lines.pop();
            lines.forEach((text) => console.warn(text));
            return 0;
        },
        proc_exit(code) {
            throw new Error(`the program ended by itself (${code})`);
        },
    };
}

export class Core {
    // program: WebAssembly.Module; files: [[name, Uint8Array]], names from data/ on, and
    // "hashes".
    static async open(program, files, { frames, width, height, path = "" }) {
        const core = new Core();
        const instance = await WebAssembly.instantiate(program, {
            wasi_snapshot_preview1: systemCalls(() => core.f.memory),
        });
        core.f = instance.exports;
        core.f._initialize();
        Object.assign(core, { frames, width, height });
        const isData = ([name]) => name.startsWith(FOLDER);
        for (const [name, bytes] of files.filter(isData)) {
            core.withText(name.slice(FOLDER.length), (text) => core.f.ombrel_add_file(text, core.put(bytes), bytes.length));
        }
        core.withText(path, (text) => core.f.ombrel_use_path(text));
        core.tellHashes(files.find(([name]) => name === "hashes"));
        if (!core.f.ombrel_open(width, height, SNAPSHOT_BYTES)) {
            throw new Error("The show could not be opened: not enough memory.");
        }
        const missing = core.list(core.f.ombrel_missing_count(), core.f.ombrel_missing_name);
        if (missing.length) {
            throw new Error(`ombrel.pack lacks ${missing.join(", ")}.`);
        }
        core.looks = core.list(core.f.ombrel_look_count(), core.f.ombrel_look_name).map((name, index) => ({
            name, meaning: core.text(core.f.ombrel_look_meaning(index)),
        }));
        core.chapters = core.list(core.f.ombrel_chapter_count(), core.f.ombrel_chapter_name).map((name, index) => ({
            name, frame: core.f.ombrel_chapter_frame(index),
        }));
        core.sliders = core.slidersOfSample();
        return core;
    }

    // --- memory: it may move with every call, so that views are made anew -------------------------

    text(at) {
        const memory = new Uint8Array(this.f.memory.buffer);
        return new TextDecoder().decode(memory.subarray(at, memory.indexOf(0, at)));
    }

    list(count, textOf) {
        return Array.from({ length: count }, (_, index) => this.text(textOf(index)));
    }

    put(bytes) {
        const at = this.f.ombrel_allocate(bytes.length);
        if (at === 0) {
            throw new Error("Not enough memory.");
        }
        new Uint8Array(this.f.memory.buffer, at, bytes.length).set(bytes);
        return at;
    }

    withText(text, use) {
        const at = this.put(new TextEncoder().encode(`${text}\0`));
        const result = use(at);
        this.f.ombrel_free(at);
        return result;
    }

    // --- the show ---------------------------------------------------------------------------------

    // [name, bytes] of the hashes of all pictures; undefined where the pack has none.
    tellHashes(file) {
        if (file) {
            const at = this.put(file[1]);
            this.f.ombrel_published(at, file[1].length / 8);
            this.f.ombrel_free(at);
        }
    }

    // Draws the next frame; false at the end.
    step() {
        return this.f.ombrel_step() === 1;
    }

    shown() {
        return this.f.ombrel_shown_frame();
    }

    ended() {
        return this.f.ombrel_ended() === 1;
    }

    // Plays towards a frame for a while; the frame that is reached.
    seek(frame, ms) {
        const end = performance.now() + ms;
        let reached;
        do {
            reached = this.f.ombrel_seek(frame, FRAMES_A_LOOK);
        } while (reached !== frame && !this.ended() && performance.now() < end);
        return reached;
    }

    // The shown frame, or a look into it, as RGBA: a view that the next call may end. Null before the
    // first frame.
    picture(look) {
        const at = look === 0 ? this.f.ombrel_picture() : this.f.ombrel_draw_look(look);
        return at === 0 ? null : new Uint8ClampedArray(this.f.memory.buffer, at, this.width * this.height * 4);
    }

    // What the colours of the last look mean.
    legend() {
        return this.list(this.f.ombrel_legend_count(), this.f.ombrel_legend_name).map((name, index) => ({
            name,
            color: `#${this.f.ombrel_legend_color(index).toString(16).padStart(6, "0")}`,
            pixels: this.f.ombrel_legend_pixels(index),
        }));
    }

    // What a pixel of the shown frame shows; an empty name: no object.
    object(x, y) {
        return { name: this.text(this.f.ombrel_find_object(x, y)), faces: this.f.ombrel_object_faces() };
    }

    count() {
        this.f.ombrel_count_figures();
        const pixels = this.f.ombrel_figure_pixels();
        return {
            faces: this.f.ombrel_figure_faces(), triangles: this.f.ombrel_figure_triangles(), pixels,
            overdraw: pixels / (this.width * this.height),
        };
    }

    // What there is to turn in the still life of a filler; the numbers are those of sample().
    slidersOfSample() {
        const names = this.list(this.f.ombrel_filler_count(), this.f.ombrel_filler_name);
        return [
            { label: "Filler", max: names.length - 1, value: names.indexOf("FillTexGouraudWBlend"), names },
            { label: "Blend level", max: 7, value: 4 },
            { label: "Mip level", max: 6, value: 0, names: [64, 32, 16, 8, 4, 2, 1].map((n, i) => `${i}, ${n} x ${n} texels`) },
        ];
    }

    // A floor and two blades, drawn by that filler; as RGBA.
    sample([filler, level, mip]) {
        const at = this.f.ombrel_draw_sample(filler, level, mip);
        return at === 0 ? null : new Uint8ClampedArray(this.f.memory.buffer, at, this.width * this.height * 4);
    }

    // Of the 16-bit pixels, as in the published list.
    hash() {
        return BigInt.asUintN(64, this.f.ombrel_picture_hash()).toString(16).padStart(16, "0");
    }
}
