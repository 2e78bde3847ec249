// The page: first view, stage, and what joins them to the player. The walk below is in walk.js.
import { Bar, byId, fillLegend } from "./bar.js";
import { onKey, pixelAt } from "./keys.js";
import { frameOfHash, hashOfFrame, megabytes, timeText } from "./moment.js";
import { HEIGHT, Player, WIDTH } from "./player.js";
import { missing } from "./support.js";
import { Walk } from "./walk.js";

const WAIT_SHOWN_MS = 250; // a search that is over sooner needs no word

const player = new Player();
const stage = byId("stage");
let canvas = null; // of the stage
let onStage = false;
let leaving = false; // full screen is left by our own doing
let waitTimer = 0;

const settings = {
    ...{ loudness: 1, muted: false, whole: null },
    ...(() => {
        try {
            return JSON.parse(localStorage.getItem("ombrel") ?? "{}");
        } catch {
            return {};
        }
    })(),
};

function keepSettings() {
    try {
        localStorage.setItem("ombrel", JSON.stringify(settings));
    } catch {
        // Then they last until the page goes.
    }
}

// --- size of the picture -------------------------------------------------------------------------

// The largest whole factor in pixels of the screen, or as large as fits. By itself the picture takes
// a whole factor, unless that wastes much of the room.
function place() {
    if (!canvas) {
        return;
    }
    const dense = window.devicePixelRatio || 1;
    const [width, height] = [stage.clientWidth * dense, stage.clientHeight * dense];
    const fit = Math.min(width / WIDTH, height / HEIGHT);
    const whole = Math.floor(fit);
    const useWhole = whole >= 1 && (settings.whole ?? whole / fit >= 0.85);
    const factor = useWhole ? whole : fit;
    const [w, h] = [Math.floor(WIDTH * factor), Math.floor(HEIGHT * factor)];
    Object.assign(canvas.style, {
        width: `${w / dense}px`, height: `${h / dense}px`,
        left: `${Math.floor((width - w) / 2) / dense}px`, top: `${Math.floor((height - h) / 2) / dense}px`,
    });
    canvas.classList.toggle("whole", Number.isInteger(factor) || factor > 3);
    return useWhole;
}

function showState() {
    bar.showState({ muted: settings.muted || settings.loudness === 0, whole: place() });
}

// --- first view ----------------------------------------------------------------------------------

function say(text, isFault = false) {
    byId("state").textContent = text;
    byId("state").classList.toggle("sorry", isFault);
}

const START_TEXT = byId("state").textContent
    + (matchMedia("(hover: none)").matches ? " Touch the picture for a bar." : " H shows the keys, Escape ends.");

function showStart() {
    const frame = frameOfHash(location.hash);
    byId("start-text").textContent = frame ? `Start at ${timeText(frame)}` : "Start";
    byId("start").disabled = false;
    byId("start").hidden = false;
    byId("progress").hidden = true;
}

function showProgress(read, size) {
    const progress = byId("progress");
    progress.hidden = false;
    if (size > 0) {
        progress.value = read / size;
        say(`Loading: ${megabytes(read)} of ${megabytes(size)}`);
    }
}

// Loads and opens the player; says on the page why it cannot.
async function open() {
    byId("start").disabled = true;
    byId("start-text").textContent = "Loading";
    // (What was begun goes on behind a fault, and must not write over what is said of it.)
    let building = true;
    player.prepare((read, size) => building && !player.about && showProgress(read, size));
    player.load.world.then(() => building && say("Building the world …"), () => {});
    try {
        await player.open();
        bar.fill();
        return true;
    } catch (fault) {
        showFault(fault.message);
        return false;
    } finally {
        building = false;
        byId("progress").hidden = true;
    }
}

function showFault(text) {
    leaveStage();
    canvas = null;
    byId("screen").replaceChildren();
    walk.forget();
    showStart();
    byId("start-text").textContent = "Try again";
    say(text, true);
}

async function start() {
    player.sound.unlock();
    player.sound.setVolume(settings.loudness, settings.muted);
    walk.rest();
    if (!(await open())) {
        return;
    }
    enterStage();
    const frame = Math.min(frameOfHash(location.hash) ?? 0, player.about.frames - 1);
    await settled(player.music, 4000);
    player.play(true);
    player.seek(frame);
}

// A promise, or that long: a show without its sound is better than none.
function settled(promise, ms) {
    return Promise.race([promise.catch(() => {}), new Promise((resolve) => setTimeout(resolve, ms))]);
}

// --- the stage -----------------------------------------------------------------------------------

function enterStage() {
    onStage = true;
    document.body.classList.add("plays");
    byId("page").inert = true;
    stage.hidden = false;
    stage.classList.add("quiet");
    stage.focus({ preventScroll: true });
    if (!canvas) {
        canvas = document.createElement("canvas");
        canvas.width = WIDTH;
        canvas.height = HEIGHT;
        canvas.setAttribute("role", "img");
        canvas.setAttribute("aria-label", "The picture of the show");
        byId("screen").replaceChildren(canvas);
        player.addScreen("stage", canvas);
    }
    player.setLook(0);
    player.use("stage");
    showState();
}

function leaveStage() {
    if (!onStage) {
        return;
    }
    onStage = false;
    player.play(false);
    if (player.marks[0] >= 0) {
        player.marks = [0, 1];
        player.markLoop();
    }
    player.setFigures(false);
    if (document.fullscreenElement) {
        leaving = true;
        document.exitFullscreen().catch(() => {});
    }
    stage.hidden = true;
    bar.showWait(null);
    byId("help").hidden = true;
    document.body.classList.remove("plays");
    byId("page").inert = false;
    showStart();
    say(START_TEXT);
    byId("start").focus({ preventScroll: true });
    window.scrollTo(0, 0);
    walk.wake();
}

async function fullScreen() {
    try {
        if (document.fullscreenElement) {
            leaving = true;
            await document.exitFullscreen();
        } else {
            await stage.requestFullscreen({ navigationUI: "hide" });
        }
    } catch {
        bar.say("The browser gives no full screen here.");
    }
}

async function copyLink() {
    const frame = player.here;
    history.replaceState(null, "", hashOfFrame(frame));
    try {
        await navigator.clipboard.writeText(location.href);
        bar.say(`Copied: a link to frame ${frame}`);
    } catch {
        bar.say(location.href);
    }
}

function saveScreenshot({ blob, frame, look }) {
    const link = document.createElement("a");
    const suffix = look ? `-${player.about.looks[look].name}` : "";
    link.download = `ombrel-${String(frame).padStart(6, "0")}${suffix}.png`;
    link.href = URL.createObjectURL(blob);
    link.click();
    setTimeout(() => URL.revokeObjectURL(link.href), 10000);
    bar.say(link.download);
}

function setVolume(loudness, muted) {
    Object.assign(settings, { loudness, muted });
    keepSettings();
    player.sound.setVolume(loudness, muted);
    byId("b-volume").value = Math.round(loudness * 100);
    showState();
}

const does = {
    end: leaveStage,
    fullScreen,
    copyLink,
    scale() {
        settings.whole = !place();
        keepSettings();
        showState();
        bar.say(place() ? "whole factors" : "fills the window");
    },
    mute: () => setVolume(settings.loudness || 1, !settings.muted && settings.loudness > 0),
    volume: (loudness) => setVolume(loudness, false),
    say: (text) => bar.say(text),
    help: () => bar.toggleHelp(),
};
const bar = new Bar(player, does);
const walk = new Walk(player, {
    open,
    ready() {
        showStart();
        say(START_TEXT);
    },
});

// A click on the picture asks what it shows; a touch brings the bar, or takes it away.
function onPicture(event) {
    if (event.button !== 0 || !canvas) {
        return;
    }
    const slept = stage.dataset.slept === "yes";
    if (event.pointerType === "touch") {
        if (!slept) {
            bar.sleep();
        }
        if (slept || player.playing) {
            return;
        }
    }
    const at = pixelAt(event, canvas);
    if (at && player.target < 0) {
        player.send("object", at);
    }
}

// --- what happens --------------------------------------------------------------------------------

player.addEventListener("state", () => onStage && showState());
player.addEventListener("frame", ({ detail }) => {
    if (!onStage) {
        return;
    }
    bar.showPlace();
    fillLegend(byId("legend"), detail.legend);
    if (detail.sought) {
        clearTimeout(waitTimer);
        waitTimer = 0;
        bar.showWait(null);
    }
});
player.addEventListener("winding", ({ detail }) => {
    if (!onStage) {
        return;
    }
    bar.showPlace();
    const text = `Winding to frame ${detail.target}: every frame is drawn, as each needs the ones before. ${detail.frame}`;
    if (!waitTimer) {
        waitTimer = setTimeout(() => player.target >= 0 && bar.showWait(text), WAIT_SHOWN_MS);
    } else if (!byId("wait").hidden) {
        bar.showWait(text);
    }
});
player.addEventListener("figures", ({ detail }) => bar.showFigures(detail));
player.addEventListener("screenshot", ({ detail }) => saveScreenshot(detail));
player.addEventListener("object", ({ detail }) => {
    if (onStage) {
        bar.say(detail.name ? `${detail.name}, ${detail.faces} faces` : "nothing of an object");
    }
});
player.addEventListener("end", () => leaveStage());
player.addEventListener("fault", ({ detail }) => showFault(detail.text));
player.addEventListener("quiet", ({ detail }) => {
    if (onStage) {
        bar.say(`No sound: ${detail.text}`);
    }
});

stage.addEventListener("pointerdown", () => {
    stage.dataset.slept = bar.sleeps ? "yes" : "no";
}, { capture: true });
byId("screen").addEventListener("click", onPicture);
byId("screen").addEventListener("dblclick", fullScreen);
document.addEventListener("keydown", (event) => {
    if (onStage && onKey(event, player, does)) {
        event.preventDefault();
    }
});
// The browser keeps Escape for itself in full screen; it ends the show there too.
document.addEventListener("fullscreenchange", () => {
    if (onStage && !document.fullscreenElement && !leaving) {
        leaveStage();
        return;
    }
    leaving = false;
    if (onStage) {
        showState();
    }
});
window.addEventListener("resize", () => onStage && showState());
window.addEventListener("hashchange", () => {
    const frame = frameOfHash(location.hash);
    if (!onStage) {
        showStart();
    } else if (frame !== null) {
        player.seek(frame);
    }
});
document.addEventListener("visibilitychange", () => player.hide(document.hidden));

// --- the beginning -------------------------------------------------------------------------------

const lacks = missing();
if (lacks.length) {
    byId("state").className = "sorry";
    byId("state").textContent = `This browser cannot play it: it lacks ${lacks.join(" and ")}. A newer one can; `;
    const link = document.createElement("a");
    link.href = "downloads/ombrel.mp4";
    link.textContent = "the video shows the same pictures.";
    byId("state").append(link);
} else {
    byId("start").addEventListener("click", start);
    byId("b-volume").value = Math.round(settings.loudness * 100);
    say(START_TEXT);
    showStart();
    walk.wake();
    begin();
}

// Keeps the page for visits without a network, and fetches the data while nobody waits, unless the
// visitor asks for few bytes.
async function begin() {
    try {
        await navigator.serviceWorker?.register("sw.js");
    } catch {
        // Plain http, or a private window: it needs the network each time.
    }
    if (!navigator.connection?.saveData) {
        (window.requestIdleCallback ?? ((call) => setTimeout(call, 300)))(() => player.prepare());
    }
}

// For scripts that drive the page.
window.ombrel = { player, start };
