// What the browser must have. Used by page.js before anything else is fetched.

// A program of one function that makes a vector: valid only where WebAssembly has SIMD.
const VECTOR_PROGRAM = new Uint8Array([
    0, 97, 115, 109, 1, 0, 0, 0, 1, 5, 1, 96, 0, 1, 123, 3, 2, 1, 0, 10, 10, 1, 8, 0, 65, 0, 253, 15, 253, 98, 11,
]);

// The names of what is missing; empty where the show can play.
export function missing() {
    const out = [];
    if (typeof WebAssembly !== "object" || !WebAssembly.validate(VECTOR_PROGRAM)) {
        out.push("WebAssembly with SIMD");
    }
    if (typeof DecompressionStream !== "function") {
        out.push("DecompressionStream");
    }
    if (typeof OffscreenCanvas !== "function" || !HTMLCanvasElement.prototype.transferControlToOffscreen) {
        out.push("OffscreenCanvas");
    }
    return out;
}
