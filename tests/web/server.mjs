// Serves a folder on the loopback as a plain web server does, for the tests of the page; can be told
// to lose a file, to cut it, or to hold the rest of it back. By itself: node server.mjs FOLDER [PORT].
import { createReadStream, existsSync, statSync } from "node:fs";
import { createServer } from "node:http";
import path from "node:path";
import { pathToFileURL } from "node:url";

const TYPES = {
    ".html": "text/html; charset=utf-8", ".js": "text/javascript", ".css": "text/css",
    ".wasm": "application/wasm", ".png": "image/png", ".txt": "text/plain; charset=utf-8",
};

// The page stands below this folder of the server, as it may on a real one.
export const BELOW = "/some/folder/";

export class Server {
    constructor(folder) {
        this.folder = folder;
        this.lost = new Set(); // names that answer 404
        this.cut = new Map(); // name: bytes that are sent of it
        this.held = new Map(); // name: bytes behind which it waits until the name is gone from here
        this.asked = []; // names, in order
    }

    listen(port = 0) {
        this.server = createServer((request, response) => this.answer(request, response));
        return new Promise((resolve) => {
            this.server.listen(port, "127.0.0.1", () => {
                this.address = `http://127.0.0.1:${this.server.address().port}${BELOW}`;
                resolve(this.address);
            });
        });
    }

    // Comes back where it was, behind close().
    again(port) {
        return this.listen(port);
    }

    close() {
        this.server.closeAllConnections?.();
        return new Promise((resolve) => this.server.close(resolve));
    }

    answer(request, response) {
        const where = decodeURIComponent(new URL(request.url, "http://x").pathname);
        const name = where.startsWith(BELOW) ? where.slice(BELOW.length) || "index.html" : "..";
        const file = path.join(this.folder, name);
        this.asked.push(name);
        if (name.includes("..") || this.lost.has(name) || !existsSync(file) || !statSync(file).isFile()) {
            response.writeHead(404, { "content-type": "text/plain" }).end("not here");
            return;
        }
        const size = Math.min(statSync(file).size, this.cut.get(name) ?? Infinity);
        response.writeHead(200, {
            "content-type": TYPES[path.extname(name)] ?? "application/octet-stream",
            "content-length": size, "cache-control": "no-store",
        });
        if (size === 0) {
            response.end();
            return;
        }
        const stop = Math.min(this.held.get(name) ?? size, size);
        const rest = () => {
            if (this.held.has(name)) {
                setTimeout(rest, 50);
            } else if (stop < size) {
                createReadStream(file, { start: stop, end: size - 1 }).pipe(response);
            } else {
                response.end();
            }
        };
        createReadStream(file, { end: stop - 1 }).on("end", rest).pipe(response, { end: false });
    }
}

if (import.meta.url === pathToFileURL(process.argv[1] ?? "").href) {
    const [folder, port] = process.argv.slice(2);
    if (!folder || folder === "--help") {
        console.log("usage: node server.mjs FOLDER [PORT]");
        process.exit(folder ? 0 : 2);
    }
    console.log(await new Server(folder).listen(Number(port ?? 8000)));
}
