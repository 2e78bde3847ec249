// The bar over the picture and what else lies on the stage: legend, figures, help, notes. It comes
// with a movement or a touch and goes by itself. Used by page.js.
import { setIcon } from "./icons.js";
import { HELP } from "./keys.js";
import { chapterFrom, chapterOf, shortTime, timeText } from "./moment.js";

const STAYS_MS = 2500;
const NOTE_MS = 2400;

export const byId = (id) => document.getElementById(id);

// Rows of [colour, name, pixels] in a list element.
export function fillLegend(list, rows) {
    list.hidden = rows.length === 0;
    list.replaceChildren(...rows.slice(0, 20).map(({ color, name, pixels }) => {
        const item = document.createElement("li");
        item.innerHTML = '<svg viewBox="0 0 8 8" aria-hidden="true"><rect width="8" height="8"/></svg><span></span><span></span>';
        item.querySelector("rect").setAttribute("fill", color);
        const [label, amount] = item.querySelectorAll("span");
        label.textContent = name;
        amount.textContent = pixels.toLocaleString("en");
        return item;
    }));
}

export class Bar {
    // does: what the page knows to do: end, fullScreen, scale, mute, volume, copyLink.
    constructor(player, does) {
        this.player = player;
        this.does = does;
        this.stage = byId("stage");
        this.scrubbing = false;
        this.makeHelp();
        this.wire();
    }

    // The player is open: chapters and looks are known.
    fill() {
        const { chapters, looks, frames } = this.player.about;
        byId("scrub").max = frames - 1;
        byId("ticks").replaceChildren(...chapters.map(({ name, frame }, index) => {
            const tick = document.createElement("button");
            tick.type = "button";
            tick.textContent = name;
            tick.title = `${name}, ${shortTime(frame)}`;
            tick.style.left = `${(frame / (frames - 1)) * 100}%`;
            const end = chapters[index + 1]?.frame ?? frames - 1;
            tick.style.maxWidth = `${((end - frame) / (frames - 1)) * 100}%`;
            tick.onclick = () => this.player.seek(frame);
            return tick;
        }));
        // (The last one is short; its name has room to the left.)
        byId("ticks").lastElementChild.style.maxWidth = "none";
        byId("b-look").replaceChildren(...looks.map(({ name, meaning }, index) => {
            const option = new Option(index === 0 ? "look inside" : name, index);
            option.title = meaning;
            return option;
        }));
    }

    wire() {
        const { player, does } = this;
        const click = (id, act) => byId(id).addEventListener("click", act);
        click("b-play", () => player.play(!player.playing));
        click("b-back", () => player.seek(chapterFrom(player.about.chapters, player.here, -1)));
        click("b-next", () => {
            const frame = chapterFrom(player.about.chapters, player.here, 1);
            if (frame !== null) {
                player.seek(frame);
            }
        });
        click("b-mute", does.mute);
        click("b-figures", () => player.setFigures(!player.figures));
        click("b-shot", () => player.send("screenshot"));
        click("b-link", does.copyLink);
        click("b-scale", does.scale);
        click("b-full", does.fullScreen);
        click("b-end", does.end);
        byId("b-volume").addEventListener("input", (event) => does.volume(event.target.value / 100));
        byId("b-look").addEventListener("change", (event) => player.setLook(Number(event.target.value)));
        const scrub = byId("scrub");
        scrub.addEventListener("input", () => {
            this.scrubbing = true;
            player.seek(Number(scrub.value));
        });
        scrub.addEventListener("change", () => {
            this.scrubbing = false;
        });
        // After a click the keys belong to the picture again; who came by Tab stays on the button.
        byId("bar").addEventListener("click", (event) => {
            if (event.detail > 0 && event.target.closest("button")) {
                this.stage.focus({ preventScroll: true });
            }
        });
        byId("bar").addEventListener("change", (event) => {
            if (event.target.matches("select, #scrub")) {
                this.stage.focus({ preventScroll: true });
            }
        });
        for (const type of ["pointermove", "pointerdown", "focusin"]) {
            this.stage.addEventListener(type, (event) => this.wake(event));
        }
    }

    makeHelp() {
        const list = document.createElement("dl");
        for (const [key, text] of HELP) {
            const [term, meaning] = [document.createElement("dt"), document.createElement("dd")];
            term.textContent = key;
            meaning.textContent = text;
            list.append(term, meaning);
        }
        byId("help").append(list);
    }

    // --- coming and going -------------------------------------------------------------------------

    // Browsers send a move when the picture moves below a mouse that rests: not meant.
    wake(event) {
        if (event?.type === "pointermove" && event.movementX === 0 && event.movementY === 0) {
            return;
        }
        if (event?.type === "focusin" && event.target === this.stage) {
            return;
        }
        this.stage.classList.remove("quiet");
        clearTimeout(this.timer);
        this.timer = setTimeout(() => this.sleep(), STAYS_MS);
    }

    sleep() {
        const bar = byId("bar");
        if (this.scrubbing || bar.matches(":focus-within:has(:focus-visible)") || bar.matches(":has(select:focus)")) {
            this.wake();
            return;
        }
        this.stage.classList.add("quiet");
    }

    get sleeps() {
        return this.stage.classList.contains("quiet");
    }

    // --- what it shows ----------------------------------------------------------------------------

    showPlace() {
        const { player } = this;
        const frame = player.here;
        const scrub = byId("scrub");
        const { chapters, frames } = player.about;
        const now = chapterOf(chapters, frame);
        if (!this.scrubbing) {
            scrub.value = frame;
        }
        if (this.sleeps) {
            return; // it is set when it comes
        }
        scrub.style.setProperty("--done", `${(frame / (frames - 1)) * 100}%`);
        scrub.setAttribute("aria-valuetext", `${shortTime(frame)}, ${chapters[now].name}`);
        byId("time").innerHTML = "";
        const small = document.createElement("span");
        small.textContent = ` / ${shortTime(frames - 1)} · frame ${frame}`;
        byId("time").append(timeText(frame), small);
        [...byId("ticks").children].forEach((tick, index) =>
            tick.setAttribute("aria-current", String(index === now)));
    }

    showState({ muted, whole }) {
        const { player } = this;
        setIcon(byId("b-play"), player.playing ? "pause" : "play");
        byId("b-play").setAttribute("aria-label", player.playing ? "Pause" : "Play");
        setIcon(byId("b-back"), "back");
        setIcon(byId("b-next"), "next");
        setIcon(byId("b-mute"), muted ? "mute" : "sound");
        byId("b-mute").setAttribute("aria-label", muted ? "Sound on" : "Sound off");
        setIcon(byId("b-figures"), "figures");
        byId("b-figures").setAttribute("aria-pressed", String(player.figures));
        byId("figures").hidden = !player.figures;
        setIcon(byId("b-shot"), "shot");
        setIcon(byId("b-link"), "link");
        setIcon(byId("b-scale"), "fit");
        byId("b-scale").setAttribute("aria-pressed", String(!whole));
        const full = document.fullscreenElement !== null;
        setIcon(byId("b-full"), full ? "window" : "full");
        byId("b-full").setAttribute("aria-label", full ? "Leave full screen" : "Full screen");
        byId("b-full").hidden = !document.fullscreenEnabled;
        setIcon(byId("b-end"), "end");
        byId("b-look").value = player.look;
    }

    showFigures(f) {
        const rows = [
            ["frame", f.frame], ["to draw", `${f.ms.toFixed(2)} ms`], ["rate", `${f.rate.toFixed(1)} / s`],
            ["faces", f.faces.toLocaleString("en")], ["triangles", f.triangles.toLocaleString("en")],
            ["pixels", f.pixels.toLocaleString("en")], ["overdraw", f.overdraw.toFixed(2)],
        ];
        byId("figures").replaceChildren(...rows.flatMap(([name, value]) => {
            const [term, text] = [document.createElement("dt"), document.createElement("dd")];
            term.textContent = name;
            text.textContent = value;
            return [term, text];
        }));
    }

    say(text) {
        const note = byId("note");
        note.textContent = text;
        note.classList.add("shows");
        clearTimeout(this.noteTimer);
        this.noteTimer = setTimeout(() => note.classList.remove("shows"), NOTE_MS);
    }

    // How far a search is; null: it is over.
    showWait(text) {
        byId("wait").hidden = text === null;
        byId("wait").textContent = text ?? "";
    }

    toggleHelp() {
        byId("help").hidden = !byId("help").hidden;
    }
}
