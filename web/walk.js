// "How a frame is drawn": a frame that the reader chooses, drawn by the same core with each look
// into it. Used by page.js.
import { byId, fillLegend } from "./bar.js";
import { pixelAt } from "./keys.js";
import { chapterOf, timeText } from "./moment.js";
import { HEIGHT, WIDTH } from "./player.js";

const DARK = 60; // frames

export class Walk {
    // does.open: loads and opens the player, true when that went well; does.ready: the
    // first view is as it was.
    constructor(player, does) {
        this.player = player;
        this.does = does;
        this.frame = Number(byId("walk-frame").value);
        this.look = 0;
        this.canvas = null;
        this.active = false; // the pictures that come are ours
        this.steps = [...byId("walk-steps").children];
        player.addEventListener("frame", ({ detail }) => this.active && this.show(detail));
        player.addEventListener("winding", ({ detail }) => this.active && this.say(
            `Drawing what comes before: frame ${detail.frame} of ${detail.target}`));
        player.addEventListener("object", ({ detail }) => this.active && this.say(
            detail.name ? `${detail.name}, ${detail.faces} faces` : "Nothing of an object."));
    }

    say(text) {
        byId("walk-caption").textContent = text;
    }

    // The stage is left, or the page is new.
    wake() {
        byId("walk-start").hidden = this.active;
        byId("walk-start").onclick = () => this.begin();
    }

    // The stage needs the core.
    rest() {
        this.active = false;
        byId("walk-start").hidden = false;
    }

    // The core is gone.
    forget() {
        this.rest();
        this.canvas?.remove();
        this.canvas = null;
    }

    async begin() {
        byId("walk-start").hidden = true;
        this.say("Loading …");
        if (!(await this.does.open())) {
            this.say("It could not be loaded; the top of the page says why.");
            byId("walk-start").hidden = false;
            return;
        }
        this.does.ready();
        if (!this.canvas) {
            this.make();
        }
        this.active = true;
        this.player.use("walk");
        this.setLook(this.look);
        // Where the show was left, unless that is in the dark of its beginning.
        this.goTo(this.player.frame > DARK ? this.player.frame : this.frame);
    }

    make() {
        const { chapters, looks, frames, sliders } = this.player.about;
        this.canvas = document.createElement("canvas");
        this.canvas.width = WIDTH;
        this.canvas.height = HEIGHT;
        this.canvas.setAttribute("role", "img");
        byId("walk-box").append(this.canvas);
        this.player.addScreen("walk", this.canvas);
        this.canvas.onclick = (event) => {
            const at = pixelAt(event, this.canvas);
            if (at) {
                this.player.send("object", at);
            }
        };
        byId("walk-choose").hidden = false;
        const range = byId("walk-frame");
        range.max = frames - 1;
        range.oninput = () => this.showNumber(Number(range.value));
        range.onchange = () => this.goTo(Number(range.value));
        byId("walk-chapters").replaceChildren(...chapters.map(({ name, frame }) => {
            const button = document.createElement("button");
            button.type = "button";
            button.textContent = name;
            // A little into the chapter there is more to see.
            button.onclick = () => this.goTo(Math.min(frame + 60, frames - 1));
            return button;
        }));
        this.makeSliders(sliders);
        for (const step of this.steps) {
            const index = looks.findIndex(({ name }) => name === step.dataset.look);
            const title = step.querySelector("h3");
            if (!title.querySelector("button")) {
                const button = document.createElement("button");
                button.type = "button";
                button.append(...title.childNodes);
                title.append(button);
                button.onclick = () => (index < 0 ? this.showSample() : this.setLook(index));
            }
        }
    }

    // The still life of a filler: [{label, max, value, names}] to turn.
    makeSliders(sliders) {
        this.values = sliders.map(({ value }) => value);
        byId("walk-sliders").replaceChildren(...sliders.map(({ label, max, value, names }, index) => {
            const box = document.createElement("label");
            const number = document.createElement("output");
            const range = document.createElement("input");
            Object.assign(range, { type: "range", min: 0, max, step: 1, value });
            const shown = () => {
                number.textContent = names?.[range.value] ?? range.value;
            };
            range.oninput = () => {
                shown();
                this.values[index] = Number(range.value);
                this.showSample();
            };
            shown();
            box.append(`${label} `, number, range);
            return box;
        }));
        this.fillers = sliders[0].names;
    }

    showSample() {
        this.player.send("sample", { values: this.values });
        this.mark("sample");
        this.say(`${this.fillers[this.values[0]]}, blend level ${this.values[1]}, mip level ${this.values[2]}`);
        fillLegend(byId("walk-legend"), []);
    }

    mark(name) {
        for (const step of this.steps) {
            const now = step.dataset.look === name;
            step.classList.toggle("now", now);
            step.querySelector("h3 button")?.setAttribute("aria-pressed", String(now));
        }
    }

    setLook(index) {
        this.look = index;
        this.player.setLook(index);
        this.mark(this.player.about.looks[index].name);
    }

    goTo(frame) {
        this.frame = frame;
        this.showNumber(frame);
        this.player.seek(frame);
    }

    showNumber(frame) {
        byId("walk-frame").value = frame;
        byId("walk-number").textContent = `${frame}, ${timeText(frame)}`;
        const now = chapterOf(this.player.about.chapters, frame);
        [...byId("walk-chapters").children].forEach((button, index) =>
            button.setAttribute("aria-current", String(index === now)));
    }

    show({ frame, look, legend }) {
        const { name, meaning } = this.player.about.looks[look];
        const text = look === 0 ? `Frame ${frame} as it is shown.` : `${name}: ${meaning}`;
        this.say(text);
        this.canvas.setAttribute("aria-label", text);
        fillLegend(byId("walk-legend"), legend);
    }
}
