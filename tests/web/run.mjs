// Plays the page in real browsers. Usage: node run.mjs PAGE_FOLDER [--browser chrome|firefox]
// [--quick] [--whole] [--only PATTERN] [--keep FOLDER]. --quick: a few cases; --whole: every frame of
// the production and nothing else; --keep: screenshots go there. The last line counts.
import { existsSync, mkdirSync, readFileSync } from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { gunzipSync } from "node:zlib";
import { SoundDevice, newPage, startBrowser } from "./browsers.mjs";
import { BELOW, Server } from "./server.mjs";
import { Skip, expect, report, run, same, until } from "./suite.mjs";

const root = path.resolve(path.dirname(fileURLToPath(import.meta.url)), "../..");
const { values: options, positionals } = parseArgs({
    allowPositionals: true,
    options: {
        browser: { type: "string" }, quick: { type: "boolean" }, whole: { type: "boolean" },
        only: { type: "string", default: "" }, keep: { type: "string" }, help: { type: "boolean" },
    },
});
if (options.help || positionals.length !== 1 || !existsSync(path.join(positionals[0], "ombrel.pack"))) {
    console.log("usage: node run.mjs PAGE_FOLDER [--browser chrome|firefox] [--quick] [--whole] "
                + "[--only PATTERN] [--keep FOLDER]");
    process.exit(options.help ? 0 : 2);
}
const folder = positionals[0];
if (options.keep) {
    mkdirSync(options.keep, { recursive: true });
}

// The published hash of every frame's picture.
const HASHES = gunzipSync(readFileSync(path.join(root, "tests/scenario/frames.txt.gz"))).toString()
    .trim().split("\n").map((line) => line.slice(-16));

const DESK = { width: 1280, height: 800 };
const PHONE = { width: 390, height: 844, deviceScaleFactor: 3, hasTouch: true, isMobile: true };
const PHONE_ON_ITS_SIDE = { ...PHONE, width: 844, height: 390 };

// --- a page that is looked at ----------------------------------------------------------------------

// What the tests do with a page. Everything is asked of the page itself, as its scripts see it.
class Visit {
    constructor(made, name, server) {
        Object.assign(this, made);
        [this.name, this.server] = [name, server];
        this.foreign = [];
        this.page.on("request", (request) => {
            if (!request.url().startsWith(server.address) && !/^(data|blob|about):/.test(request.url())) {
                this.foreign.push(request.url());
            }
        });
    }

    open(hash = "") {
        return this.page.goto(this.server.address + hash, { waitUntil: "load" });
    }

    get(what, ...more) {
        return this.page.evaluate(what, ...more);
    }

    text(selector) {
        return this.page.$eval(selector, (element) => element.textContent.trim());
    }

    shown(selector) {
        return this.page.$eval(selector, (element) => element.checkVisibility());
    }

    frame() {
        return this.get(() => window.ombrel.player.frame);
    }

    key(key) {
        return this.page.keyboard.press(key);
    }

    async picture(name) {
        if (options.keep) {
            await this.page.screenshot({ path: path.join(options.keep, `${this.name}-${name}.png`) });
        }
    }

    // Starts by a click and waits until pictures come.
    async start(hash) {
        await this.open(hash);
        await until("the button to start", () => this.shown("#start"));
        await this.page.click("#start");
        await until("a first picture", async () => {
            const fault = await this.page.$eval("#state", (line) => (line.classList.contains("sorry") ? line.textContent : ""));
            expect(!fault, `the page says: ${fault}`);
            return (await this.frame()) >= 0;
        }, 120);
    }

    async pause() {
        if (await this.get(() => window.ombrel.player.playing)) {
            await this.key(" ");
        }
        await this.still();
    }

    // Until nothing moves any more.
    async still() {
        let before = -2;
        await until("a picture that stays", async () => {
            const [frame, target] = await this.get(() => [window.ombrel.player.frame, window.ombrel.player.target]);
            const stays = frame === before && target < 0;
            before = frame;
            return stays;
        }, 400);
    }

    async seek(frame) {
        await this.get((to) => window.ombrel.player.seek(to), frame);
        await until(`frame ${frame}`, async () =>
            this.get((to) => window.ombrel.player.target < 0 && window.ombrel.player.frame >= to, frame), 400);
    }

    // The pixels of the canvas as the browser holds them, as a picture file of the page's own; back in
    // 16 bits; their hash. So colours and channels count, not only what the program says of itself.
    async canvasHash() {
        return this.get(async () => {
            const shot = await window.ombrel.player.ask("screenshot", "screenshot");
            const bitmap = await createImageBitmap(shot.blob);
            const context = new OffscreenCanvas(bitmap.width, bitmap.height).getContext("2d");
            context.drawImage(bitmap, 0, 0);
            const { data } = context.getImageData(0, 0, bitmap.width, bitmap.height);
            let hash = 0xcbf29ce484222325n;
            const mask = (1n << 64n) - 1n;
            for (let at = 0; at < data.length; at += 4) {
                const pixel = (data[at] >> 3) << 11 | (data[at + 1] >> 2) << 5 | data[at + 2] >> 3;
                hash = ((hash ^ BigInt(pixel & 255)) * 0x100000001b3n) & mask;
                hash = ((hash ^ BigInt(pixel >> 8)) * 0x100000001b3n) & mask;
            }
            return { frame: shot.frame, size: [bitmap.width, bitmap.height], hash: hash.toString(16).padStart(16, "0") };
        });
    }

    // The shown picture is the published one of its frame.
    async expectPublished(frame) {
        const got = await this.canvasHash();
        same(got.frame, frame, "the frame that is shown");
        same(got.size, [640, 480], "the size of the picture");
        same(got.hash, HASHES[frame], `the hash of frame ${frame} as it stands on the canvas`);
        same(await this.get(() => window.ombrel.player.ask("hash", "hash").then(({ hash }) => hash)),
             HASHES[frame], `the hash of frame ${frame} in the core`);
    }

    // How far the sound that really leaves the page is ahead of the picture, in seconds: its samples
    // are looked up in the music. Null while they are not found.
    async measured() {
        return this.get(async () => {
            const { player } = window.ombrel;
            const { sound } = player;
            if (!window.ear) {
                window.ear = sound.context.createAnalyser();
                window.ear.fftSize = 4096;
                sound.master.connect(window.ear);
            }
            await new Promise((resolve) => setTimeout(resolve, 150));
            const heard = new Float32Array(4096);
            window.ear.getFloatTimeDomainData(heard);
            const now = sound.context.currentTime; // of the last of these samples
            const at = sound.heard();
            const [frame, shownAt] = [player.frame, player.shownAt];
            const [left, right] = [0, 1].map((channel) => sound.buffer.getChannelData(channel));
            const rate = sound.buffer.sampleRate;
            const loudest = heard.reduce((most, v) => Math.max(most, Math.abs(v)), 0);
            if (loudest < 1e-3) {
                return null;
            }
            const gain = sound.loudness ** 2;
            const piece = heard.subarray(2048, 2304);
            let [best, least] = [null, Infinity];
            const middle = Math.round((frame / 40) * rate);
            for (let start = Math.max(0, middle - rate); start < Math.min(middle + rate, left.length - 4096); ++start) {
                let apart = 0;
                for (let i = 0; i < piece.length && apart < least; ++i) {
                    const d = piece[i] - ((left[start + i] + right[start + i]) / 2) * gain;
                    apart += d * d;
                }
                if (apart < least) {
                    [best, least] = [start, apart];
                }
            }
            const power = piece.reduce((sum, v) => sum + v * v, 0);
            if (least > power * 0.02) {
                return null;
            }
            // Sample 2048 was at `now` - 2048 samples; from there to when the frame was seen.
            const musicAtNow = (best + 2048) / rate;
            const contextAtShown = at.context + (shownAt - at.at) / 1000;
            return musicAtNow + (contextAtShown - now) - frame / 40;
        });
    }

    // Nothing went wrong in the page that was not meant to, and nothing was asked of anyone else.
    async end(allowed = null) {
        same(this.notes.filter((note) => !allowed?.test(note)), [], "what the console says");
        same(this.foreign, [], "requests to elsewhere");
        await this.close();
    }
}

// --- the cases -------------------------------------------------------------------------------------

function casesOf(browser, name, server) {
    const visit = async (size = DESK) => new Visit(await newPage(browser, size), name, server);
    // A case with a page of its own, which must end without a word on the console.
    const alone = (act, size = DESK, allowed = null) => async () => {
        const page = await visit(size);
        try {
            await act(page);
            await page.end(allowed);
        } catch (fault) {
            if (!(fault instanceof Skip)) {
                await page.picture("failed").catch(() => {});
            }
            await page.close().catch(() => {});
            throw fault;
        }
    };
    // Many cases share one page that plays on.
    let shared = null;
    const together = (act) => async () => {
        if (!shared) {
            shared = await visit();
            await shared.start();
        }
        await act(shared);
    };
    // The sound is where the picture is: by the page's own figures and by what is heard.
    const inTime = async (page, when) => {
        let got = null;
        await until(`${when}: sound and picture within 25 ms`, async () => {
            const seen = await page.get(() => window.ombrel.player.sync.apart.length >= 9
                                        ? window.ombrel.player.sync.median() : null);
            const heard = seen === null ? null : await page.measured();
            got = [seen, heard];
            return heard !== null && Math.abs(seen) <= 0.025 && Math.abs(heard) <= 0.04;
        }, 30).catch(async (fault) => {
            // Where frames take longer than they last the sound cannot stay.
            const ms = await page.get(() => window.ombrel.player.cost);
            if (ms > 20) {
                throw new Skip(`${when}: frames take ${ms.toFixed(1)} ms here, sound and picture cannot stay together`);
            }
            fault.message += ` (told, measured: ${got} s; ${ms.toFixed(1)} ms a frame)`;
            throw fault;
        });
        console.log(`       ${when}: told ${(got[0] * 1000).toFixed(1)} ms, measured ${(got[1] * 1000).toFixed(1)} ms`);
    };

    return [
        ["first view", alone(async (page) => {
            await page.open();
            await until("the button to start", () => page.shown("#start"));
            same(await page.text("h1"), "Ombrel", "headline");
            await until("the still", () => page.get(() => document.querySelector(".first .still").naturalWidth === 640));
            await page.picture("first");
            // Everything that can be used has a name, and Tab comes to Start before all else.
            await page.key("Tab");
            same(await page.get(() => document.activeElement.id), "start", "what Tab comes to first");
            same(await page.get(() => [...document.querySelectorAll("button, input, select, a[href], canvas, img")]
                .filter((element) => !(element.getAttribute("aria-label") || element.textContent.trim() ||
                                       element.labels?.length || element.hasAttribute("alt")))
                .map((element) => element.outerHTML.slice(0, 60))), [], "elements without a name");
            same(await page.get(() => document.documentElement.lang), "en", "language");
        }), true],

        ["starts on a click, with sound", together(async (page) => {
            const before = await page.get(() => window.ombrel.player.sound.context.currentTime);
            const first = await page.frame();
            await until("pictures and the clock of the sound", async () =>
                (await page.frame()) > first + 5 &&
                await page.get((then) => window.ombrel.player.sound.context.currentTime > then + 0.2, before));
            same(await page.get(() => document.activeElement.id), "stage", "what has the focus");
            expect(await page.get(() => document.querySelector("#stage").classList.contains("quiet")),
                   "the bar is there uninvited");
            await inTime(page, "after the start");
            await page.picture("plays");
        }), true],

        ["pause and on", together(async (page) => {
            await page.pause();
            const frame = await page.frame();
            same(await page.get(() => window.ombrel.player.sound.playing), null, "sound while paused");
            await page.expectPublished(frame);
            await page.key(" ");
            await until("it plays on", async () => (await page.frame()) > frame + 3);
            await inTime(page, "after a pause");
        }), true],

        ["frames of scene one", together(async (page) => {
            await page.pause();
            for (const frame of [0, 1, 100, 200, 37]) {
                await page.seek(frame);
                await page.expectPublished(frame);
            }
        }), true],

        ["seek while it plays", together(async (page) => {
            await page.pause();
            await page.seek(20);
            await page.key(" ");
            await until("it plays", async () => (await page.frame()) > 22);
            const before = await page.frame();
            await page.key("ArrowRight");
            await until("5 seconds on", async () => (await page.frame()) >= before + 200, 120);
            await inTime(page, "after a seek");
        })],

        ["keys of frames and chapters", together(async (page) => {
            await page.pause();
            await page.key("Home");
            await page.still();
            same(await page.frame(), 0, "Home");
            await page.page.keyboard.down("Shift");
            await page.key("ArrowRight");
            await page.key("ArrowRight");
            await page.page.keyboard.up("Shift");
            await page.still();
            same(await page.frame(), 2, "twice Shift and right");
            await page.key("ArrowUp");
            await page.still();
            same(await page.frame(), 192, "next chapter");
            await page.expectPublished(192);
            await page.key("ArrowDown");
            await page.still();
            same(await page.frame(), 0, "back");
        })],

        ["the bar comes, scrubs and goes", together(async (page) => {
            await page.pause();
            await page.page.mouse.move(400, 300);
            await page.page.mouse.move(420, 320);
            await until("the bar", () => page.get(() => !document.querySelector("#stage").classList.contains("quiet")));
            const box = await page.page.$eval("#scrub", (element) => {
                const { left, top, width, height } = element.getBoundingClientRect();
                return { left, top, width, height };
            });
            const thumb = 16;
            const x = box.left + thumb / 2 + (box.width - thumb) * (300 / 6016);
            const before = await page.frame();
            await page.page.mouse.click(x, box.top + box.height / 2);
            await until("a click on the line leads elsewhere", () => page.get((from) =>
                window.ombrel.player.target >= 0 || window.ombrel.player.frame !== from, before), 10);
            await page.still();
            const frame = await page.frame();
            expect(Math.abs(frame - 300) <= 12, `a click at frame 300 of the line leads to ${frame}`);
            await page.expectPublished(frame);
            await page.picture("bar");
            same(await page.get(() => [...document.querySelectorAll("#ticks button")].map((tick) => tick.textContent)),
                 ["dawn", "gates", "parasol", "tower", "climb", "glass", "night", "greetings", "points", "end"], "chapters");
            expect((await page.text("#time")).includes(`frame ${frame}`), "the bar tells another frame");
            await page.page.mouse.move(500, 200);
            await until("the bar is gone", () => page.get(() => document.querySelector("#stage").classList.contains("quiet")));
        }), true],

        ["looks leave no trace", together(async (page) => {
            await page.pause();
            await page.seek(192);
            const seen = new Set();
            for (const key of ["1", "2", "3", "4", "6", "7", "8", "8", "9", "9"]) {
                const before = await page.get(() => window.ombrel.player.look);
                await page.key(key);
                await until(`another look for ${key}`, () => page.get((then) => window.ombrel.player.look !== then, before));
                const { hash } = await page.canvasHash();
                expect(hash !== HASHES[192] && !seen.has(hash), `the look of key ${key} is one of the others`);
                seen.add(hash);
                if (key === "8" && !seen.has("legend")) {
                    seen.add("legend");
                    await until("a legend", () => page.shown("#legend"));
                    expect(/FillTex/.test(await page.text("#legend")), "no filler in the legend");
                    await page.picture("fillers");
                }
            }
            await page.key("0");
            await page.expectPublished(192);
            same(await page.shown("#legend"), false, "a legend without a look");
        }), true],

        ["figures, an object's name, help, loop, speed", together(async (page) => {
            await page.pause();
            await page.key("i");
            await until("figures", async () => /faces\s*[\d,]+/.test(await page.text("#figures")));
            await page.page.mouse.click(640, 560);
            await until("the name of an object", async () => /\.cob, \d+ faces/.test(await page.text("#note")));
            await page.key("h");
            expect((await page.text("#help")).includes("begin of a loop"), "no help");
            await page.picture("figures");
            await page.key("h");
            await page.key("i");
            await page.seek(30);
            await page.key("l");
            await page.seek(34);
            await page.key("l");
            await page.key(" ");
            const seen = new Set();
            await until("the loop comes round", async () => {
                const frame = await page.frame();
                const round = seen.has(34) && frame < 33;
                seen.add(frame);
                return round;
            });
            expect([...seen].every((frame) => frame >= 30 && frame <= 34), `frames ${[...seen]} in the loop`);
            await page.pause();
            await page.key("l");
            await page.key("-");
            same(await page.get(() => window.ombrel.player.speed), 1, "speed");
            await page.key("+");
            same(await page.get(() => window.ombrel.player.speed), 2, "speed");
        })],

        ["screenshot and link", together(async (page) => {
            await page.pause();
            await page.seek(100);
            await page.get(() => {
                window.saved = null;
                HTMLAnchorElement.prototype.click = function () {
                    window.saved = this.download;
                };
                document.querySelector("#b-shot").click();
            });
            await until("a picture is saved", () => page.get(() => window.saved));
            same(await page.get(() => window.saved), "ombrel-000100.png", "its name");
            await page.get(() => document.querySelector("#b-link").click());
            await until("an address with the frame", () => page.get(() => location.hash === "#f=100"));
            await page.get(() => history.replaceState(null, "", "#f=120"));
            await page.get(() => window.dispatchEvent(new HashChangeEvent("hashchange")));
            await page.still();
            same(await page.frame(), 120, "an address that changes");
        })],

        ["size, whole factors and full screen", together(async (page) => {
            await page.pause();
            const box = () => page.page.$eval("#screen canvas", (element) => {
                const { left, top, width, height } = element.getBoundingClientRect();
                return [left, top, width, height].map((v) => Math.round(v));
            });
            for (const [width, height, wanted] of [[1280, 960, [0, 0, 1280, 960]], [2000, 1100, [360, 70, 1280, 960]],
                                                   [1280, 800, [106, 0, 1066, 800]], [300, 600, [0, 187, 300, 225]]]) {
                await page.page.setViewport({ width, height });
                await until(`the picture in ${width} x ${height}`, async () =>
                    (await box()).every((v, i) => Math.abs(v - wanted[i]) <= 1), 10)
                    .catch(async () => same(await box(), wanted, `the picture in ${width} x ${height}`));
            }
            await page.page.setViewport(DESK);
            await page.key("z");
            await until("a whole factor", async () => (await box())[2] === 640, 10);
            await page.key("z");
            await until("the whole window", async () => (await box())[3] === 800, 10);
            await page.key("f");
            await until("full screen", () => page.get(() => document.fullscreenElement?.id === "stage"), 10)
                .catch(async (fault) => {
                    // Given to those who act; keys and clicks that Firefox is sent do not always count.
                    if (name === "firefox" && /gives no full screen/.test(await page.text("#note"))) {
                        throw new Skip("Firefox refused full screen to the script that drives it, and the page said so");
                    }
                    throw fault;
                });
            await page.key("f");
            await until("no full screen", () => page.get(() => document.fullscreenElement === null), 20);
            same(await page.shown("#stage"), true, "the stage behind F");
        })],

        ["hidden and back", together(async (page) => {
            await page.pause();
            await page.key(" ");
            await until("it plays", () => page.get(() => window.ombrel.player.sound.playing !== null));
            await page.get(() => {
                Object.defineProperty(document, "hidden", { configurable: true, get: () => window.away });
                window.away = true;
                document.dispatchEvent(new Event("visibilitychange"));
            });
            await until("silence", () => page.get(() => window.ombrel.player.sound.playing === null));
            let before = -1;
            await until("a picture that waits", async () => {
                const frame = await page.frame();
                const waits = frame === before;
                before = frame;
                await new Promise((resolve) => setTimeout(resolve, 300));
                return waits;
            });
            await page.get(() => {
                window.away = false;
                document.dispatchEvent(new Event("visibilitychange"));
            });
            await until("it plays on", async () => (await page.frame()) > before);
            expect((await page.frame()) < before + 400, "it ran on while nobody looked");
            await inTime(page, "back from another tab");
        })],

        ["scene two has its frames", together(async (page) => {
            await page.pause();
            await page.seek(2060);
            await page.expectPublished(2060);
            await page.seek(2049);
            await page.expectPublished(2049);
            await page.picture("night");
        }), true],

        ["Escape ends, and it starts again", together(async (page) => {
            await page.key("Escape");
            await until("the first view", async () => !(await page.shown("#stage")));
            same(await page.get(() => [document.activeElement.id, window.ombrel.player.playing,
                                       window.ombrel.player.sound.playing]), ["start", false, null], "focus, playing, sound");
            await page.get(() => history.replaceState(null, "", location.pathname));
            await page.page.click("#start");
            await until("it plays again", async () => (await page.shown("#stage")) &&
                await page.get(() => window.ombrel.player.playing && window.ombrel.player.frame > 2 &&
                                     window.ombrel.player.frame < 1000));
            await page.key("Escape");
            await until("the first view", async () => !(await page.shown("#stage")));
        }), true],

        ["how a frame is drawn", together(async (page) => {
            if (await page.shown("#stage")) {
                await page.key("Escape");
                await until("the first view", async () => !(await page.shown("#stage")));
            }
            await page.get(() => document.querySelector("#walk").scrollIntoView());
            await page.page.click("#walk-start");
            await until("a frame in the walk", async () => /^Frame \d+ as it is shown/.test(await page.text("#walk-caption")), 120);
            for (const [look, said] of [["depth", /^depth:/], ["objects", /^objects:/], ["none", /as it is shown/]]) {
                await page.get((name) => document.querySelector(`li[data-look="${name}"] h3 button`).click(), look);
                await until(`the look ${look}`, async () => said.test(await page.text("#walk-caption")));
                if (look === "objects") {
                    await page.picture("walk");
                }
            }
            same(await page.get(() => [...document.querySelectorAll("#walk-steps li")].map(({ dataset }) => dataset.look)
                .filter((name) => name !== "sample" && !window.ombrel.player.about.looks.some((look) => look.name === name))), [],
                 "steps with looks that the core does not know");
            const turn = (index, value) => page.get(([slider, to]) => {
                const range = document.querySelectorAll("#walk-sliders input")[slider];
                range.value = to;
                range.dispatchEvent(new Event("input"));
            }, [index, value]);
            const drawn = new Set();
            for (const [index, value, said] of [[0, 0, /^FillFlat, /], [0, 36, /^FillTexWSpanBlend, /],
                                                [1, 7, /blend level 7/], [2, 3, /mip level 3$/]]) {
                await turn(index, value);
                await until("a still life", async () => said.test(await page.text("#walk-caption")));
                drawn.add((await page.canvasHash()).hash);
            }
            same(drawn.size, 4, "different still lives");
            await page.picture("sample");
            await page.get(() => {
                const range = document.querySelector("#walk-frame");
                range.value = 60;
                range.dispatchEvent(new Event("change"));
            });
            await until("frame 60", async () => (await page.text("#walk-caption")) === "Frame 60 as it is shown.", 120);
        })],

        ["nothing went wrong on the way", async () => {
            const page = shared;
            shared = null;
            expect(page, "no page was played");
            await page.end();
        }, true],

        ["a link to a moment", alone(async (page) => {
            await page.open("#f=120");
            await until("the button", async () => (await page.text("#start-text")) === "Start at 0:03.00");
            await page.page.click("#start");
            await until("frame 120", async () => (await page.frame()) >= 120, 120);
            expect((await page.frame()) < 200, "it began elsewhere");
        })],

        ["embedded in another page", alone(async (page) => {
            await page.page.setContent(`<iframe src="${server.address}#f=40" allow="autoplay; fullscreen" `
                                       + 'width="960" height="720"></iframe>');
            const frame = await (await page.page.$("iframe")).contentFrame();
            const inside = Object.assign(Object.create(page), { page: frame });
            await until("the button", async () => (await inside.text("#start-text")) === "Start at 0:01.00");
            await frame.click("#start");
            await until("frames from 40 on", async () => (await inside.frame()) > 42, 120);
            const got = await inside.canvasHash();
            expect(got.frame > 42 && got.frame < 400, `frame ${got.frame}`);
            same(got.hash, HASHES[got.frame], `the hash of frame ${got.frame}`);
            await until("sound", () => inside.get(() => window.ombrel.player.sound.playing !== null), 30);
        })],

        ["starts before all has come", alone(async (page) => {
            const pack = readFileSync(path.join(folder, "ombrel.pack"));
            const length = pack.readUInt32LE(8);
            const { parts } = JSON.parse(pack.subarray(12, 12 + length).toString());
            server.held.set("ombrel.pack", 12 + length + parts[0].packed + parts[1].packed + 10000);
            try {
                await page.start();
                await until("the first minute of the music", () => page.get(() => window.ombrel.player.sound.buffer?.duration > 59));
                expect(await page.get(() => window.ombrel.player.sound.buffer.duration < 61), "there is more than the first minute");
            } finally {
                server.held.clear();
            }
            await until("all of the music", () => page.get(() => window.ombrel.player.sound.buffer?.duration > 150), 120);
            // Joined without a step: as close at the seam as anywhere.
            const worst = await page.get(() => {
                const data = window.ombrel.player.sound.buffer.getChannelData(0);
                const step = (from, to) => {
                    let most = 0;
                    for (let i = from + 1; i < to; ++i) {
                        most = Math.max(most, Math.abs(data[i] - data[i - 1]));
                    }
                    return most;
                };
                return [step(59 * 44100, 61 * 44100), step(50 * 44100, 58 * 44100)];
            });
            expect(worst[0] <= worst[1] * 1.5 + 0.01, `a step of ${worst[0]} at the seam, ${worst[1]} before it`);
        })],

        ["a phone, upright and on its side", async () => {
            for (const [word, size] of [["upright", PHONE], ["side", PHONE_ON_ITS_SIDE]]) {
                await alone(async (page) => {
                    await page.open();
                    await until("the button", () => page.shown("#start"));
                    const wide = await page.get(() => [document.documentElement.scrollWidth, innerWidth]);
                    expect(wide[0] <= wide[1], `the page is ${wide[0]} wide, the screen ${wide[1]}`);
                    expect(await page.get(() => document.querySelector("#start").getBoundingClientRect().bottom <= innerHeight),
                           "the button is out of sight");
                    await page.picture(`phone-${word}-first`);
                    await page.start();
                    await page.page.mouse.move(100, 200);
                    await page.page.mouse.move(110, 210);
                    await until("the bar", () => page.get(() => !document.querySelector("#stage").classList.contains("quiet")));
                    const small = await page.get(() => [...document.querySelectorAll("#bar .buttons button, #b-look, #scrub")]
                        .filter((element) => element.checkVisibility())
                        .map((element) => [element.id, element.getBoundingClientRect()])
                        .filter(([, box]) => box.left < 0 || box.right > innerWidth || box.bottom > innerHeight ||
                                             box.width < 40 && box.height < 40)
                        .map(([id, box]) => `${id} ${Math.round(box.left)} to ${Math.round(box.right)} of ${innerWidth}`));
                    same(small, [], "buttons that are out of sight or too small");
                    const picture = await page.page.$eval("#screen canvas", (element) => element.getBoundingClientRect().width);
                    expect(picture >= (word === "upright" ? 380 : 500), `a picture of ${picture} points`);
                    await page.picture(`phone-${word}-plays`);
                }, size)();
            }
        }],

        ["a data file is missing", alone(async (page) => {
            server.lost.add("ombrel.pack");
            try {
                await page.open();
                await until("the button", () => page.shown("#start"));
                await page.page.click("#start");
                await until("a word about it", async () => /ombrel\.pack is missing/.test(await page.text("#state")));
                await page.picture("missing");
            } finally {
                server.lost.clear();
            }
            await until("the button", () => page.get(() => !document.querySelector("#start").disabled));
            await page.page.click("#start");
            await until("it plays at the second try", async () => (await page.frame()) > 0, 120);
        }, DESK, /404|Failed to load/)],

        ["a data file is cut off", async () => {
            for (const [file, bytes, said] of [["ombrel.pack", 2e6, /ombrel\.pack is broken: cut off: 2000000 of \d+ bytes came/],
                                               ["ombrel.pack", 0, /ombrel\.pack is broken: cut off/],
                                               ["ombrel.wasm", 100000, /ombrel\.wasm is broken or cut off/]]) {
                await alone(async (page) => {
                    server.cut.set(file, bytes);
                    try {
                        await page.open();
                        await until("the button", () => page.shown("#start"));
                        await page.page.click("#start");
                        await until(`a word about ${file}`, async () => said.test(await page.text("#state")));
                        same(await page.shown("#stage"), false, "a stage");
                    } finally {
                        server.cut.clear();
                    }
                })();
            }
        }],

        ["without SIMD", alone(async (page) => {
            await page.page.evaluateOnNewDocument(() => {
                WebAssembly.validate = () => false;
            });
            server.asked.length = 0;
            await page.open();
            await until("a word about it", async () => /lacks WebAssembly with SIMD/.test(await page.text("#state")));
            same(await page.get(() => document.querySelector("#state a").getAttribute("href")), "downloads/ombrel.mp4", "link");
            same([await page.shown("#start"), await page.shown("#walk-start")], [false, false], "buttons");
            same(server.asked.filter((asked) => /^ombrel\./.test(asked)), [], "files that were fetched for nothing");
            await page.picture("no-simd");
        }), true],

        ["without scripts", alone(async (page) => {
            if (name === "firefox") {
                throw new Skip("this browser cannot be told to run no scripts while it is driven");
            }
            await page.page.setJavaScriptEnabled(false);
            await page.open();
            expect(await page.shown("noscript .sorry"), "no word for browsers without scripts");
            same(await page.page.$eval("noscript a", (link) => link.getAttribute("href")), "downloads/ombrel.mp4", "link");
            same([await page.shown("#start"), await page.shown("#walk-start")], [false, false], "buttons");
            await page.picture("no-script");
        })],

        ["a second visit without a network", alone(async (page) => {
            await page.open();
            await until("all is stored", () => page.get(async () => {
                const registration = await navigator.serviceWorker.getRegistration();
                const names = (await caches.keys()).filter((key) => key.startsWith("ombrel "));
                const store = names.length === 1 && await caches.open(names[0]);
                return Boolean(registration?.active && store && await store.match("ombrel.pack") &&
                               await store.match("ombrel.wasm"));
            }), 120);
            const port = Number(new URL(server.address).port);
            await server.close();
            try {
                await page.start();
                await page.pause();
                await page.seek(10);
                await page.expectPublished(10);
            } finally {
                await server.again(port);
            }
        })],
    ].filter(([, , short]) => short || !options.quick).map(([title, act]) => [title, act]);
}

function times(all) {
    const sorted = [...all].sort((a, b) => a - b);
    const part = (share) => sorted[Math.floor((sorted.length - 1) * share)].toFixed(1);
    return `median ${part(0.5)} ms, 99 of 100 within ${part(0.99)} ms, worst ${part(1)} ms`;
}

// How long it takes until each frame is there, ms.
async function timesOfSeeks(page, frames) {
    const all = [];
    for (const frame of frames) {
        const start = Date.now();
        await page.seek(frame);
        all.push(Date.now() - start);
    }
    return all;
}

// Every frame, unseen, as fast as it goes.
function wholeOf(browser, name, server) {
    return [["every frame of the production", async () => {
        const page = new Visit(await newPage(browser), name, server);
        await page.open();
        await page.get(() => window.ombrel.player.open());
        const took = [];
        let [frame, memory] = [0, 0];
        for (;;) {
            const { list, memory: size } = await page.get(() => window.ombrel.player.ask("hashes", "hashes", { count: 100 }));
            memory = Math.max(memory, size);
            for (const [number, hash, ms] of list) {
                same([number, hash], [frame, HASHES[frame]], `frame ${frame}, its number and hash`);
                took.push(ms);
                ++frame;
            }
            if (list.length < 100) {
                break;
            }
        }
        same(frame, HASHES.length, "frames");
        const sum = took.reduce((a, b) => a + b, 0);
        console.log(`       a frame: mean ${(sum / frame).toFixed(2)} ms, ${times(took)}; memory of the program ${memory >> 20} MiB`);
        await page.end();
    }], ["times of seeks", async () => {
        const page = new Visit(await newPage(browser), name, server);
        await page.start();
        await page.pause();
        console.log(`       cold, to frames 3778 and 4900: ${(await timesOfSeeks(page, [3778, 4900])).join(" and ")} ms`);
        console.log(`       where it was played: ${times(await timesOfSeeks(page, [3770, 3700, 3740, 4890, 4800, 4850]))}`);
        await page.expectPublished(4850);
        await page.end();
    }]];
}

const device = new SoundDevice();
const server = new Server(folder);
const counts = { passed: 0, failed: 0, skipped: 0 };
try {
    const sound = await device.start();
    await server.listen();
    expect(server.address.endsWith(BELOW), "the page stands in a folder of the server");
    for (const name of options.browser ? [options.browser] : ["chrome", "firefox"]) {
        const browser = await startBrowser(name, sound);
        console.log(`${await browser.version()}`);
        try {
            const cases = options.whole ? wholeOf(browser, name, server) : casesOf(browser, name, server);
            const got = await run(cases, { only: options.only, prefix: `${name}: `, limit: options.whole ? 2000 : 240 });
            Object.keys(counts).forEach((how) => {
                counts[how] += got[how];
            });
        } finally {
            await Promise.race([browser.close(), new Promise((resolve) => setTimeout(resolve, 20000))]);
            browser.process()?.kill("SIGKILL"); // one that does not answer does not close either
        }
    }
} finally {
    await server.close();
    device.stop();
}
report(counts);
process.exit(); // not kept waiting by what a browser never answered
