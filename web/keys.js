// What keys do: the same as in the player's window. One table for the answers and the help text.
import { HEIGHT, SPEEDS, WIDTH } from "./player.js";
import { chapterFrom } from "./moment.js";

export const HELP = [
    ["Space", "play, pause"],
    ["Left, Right", "5 seconds, with Shift a frame"],
    ["Up, Down", "next chapter, this or the one before"],
    ["Home, End", "first, last frame"],
    ["+ −", "speed, 1/4 to 4"],
    ["L", "begin of a loop, its end, no loop"],
    ["S", "saves the picture"],
    ["M", "sound off and on"],
    ["I", "figures of the frame"],
    ["Z", "fills the window, or whole factors"],
    ["F, Alt+Enter", "full screen"],
    ["0 to 9", "looks inside; 3, 8 and 9 again: lights, objects, mip levels"],
    ["Click, tap", "names an object while paused"],
    ["H", "these keys"],
    ["Escape", "ends"],
];

const SKIP = 200; // frames: 5 seconds
// Some digits have a second look, for a second press: look, second look.
const SECOND = { 3: 12, 8: 11, 9: 10 };

export function digitLook(digit, look) {
    return look === digit && SECOND[digit] !== undefined ? SECOND[digit] : digit;
}

// frame: where it is. Frames to go to for a key that moves, or null.
export function movedTo(key, shift, player) {
    const { chapters, frames } = player.about;
    const skip = shift ? 1 : SKIP;
    switch (key) {
    case "ArrowLeft": return Math.max(0, player.here - skip);
    case "ArrowRight": return Math.min(frames - 1, player.here + skip);
    case "ArrowUp": return chapterFrom(chapters, player.here, 1);
    case "ArrowDown": return chapterFrom(chapters, player.here, -1);
    case "Home": return 0;
    case "End": return frames - 1;
    default: return null;
    }
}

// Answers a key of the stage; true when it was one of ours. `does` holds what is more than the
// player's own business: say, end, fullScreen, scale, mute, help.
export function onKey(event, player, does) {
    if (event.ctrlKey || event.metaKey || (event.altKey && event.key !== "Enter")) {
        return false;
    }
    // What has the focus keeps the keys that are its own.
    const tag = event.target.tagName;
    if (tag === "SELECT" || (tag === "BUTTON" && (event.key === " " || event.key === "Enter")) ||
        (tag === "INPUT" && event.target.dataset.own !== undefined && /^(Arrow|Home|End)/.test(event.key))) {
        return event.key === "Escape" ? (does.end(), true) : false;
    }
    const frame = movedTo(event.key, event.shiftKey, player);
    if (frame !== null) {
        if (event.shiftKey && player.playing) {
            player.play(false);
        }
        player.seek(frame);
        return true;
    }
    if (/^[0-9]$/.test(event.key)) {
        player.setLook(digitLook(Number(event.key), player.look));
        const { name, meaning } = player.about.looks[player.look];
        does.say(player.look ? `${name}: ${meaning}` : "the picture itself");
        return true;
    }
    const act = {
        " ": () => player.play(!player.playing),
        "l": () => does.say(loopText(player.markLoop())),
        "s": () => player.send("screenshot"),
        "m": does.mute,
        "+": () => changeSpeed(player, 1, does),
        "=": () => changeSpeed(player, 1, does),
        "-": () => changeSpeed(player, -1, does),
        "i": () => player.setFigures(!player.figures),
        "h": does.help,
        "z": does.scale,
        "f": does.fullScreen,
        "Enter": event.altKey ? does.fullScreen : null,
        "Escape": does.end,
    }[event.key.length === 1 ? event.key.toLowerCase() : event.key];
    act?.();
    return Boolean(act);
}

export function loopText([first, last]) {
    return first < 0 ? "no loop"
        : last < 0 ? `loop from ${first}, L again marks its end`
        : `loop ${first} to ${last}`;
}

function changeSpeed(player, by, does) {
    player.setSpeed(player.speed + by);
    const speed = SPEEDS[player.speed];
    does.say(`speed ${speed}${speed === 1 ? "" : ", silent"}`);
}

// The pixel of the picture at a point of its element.
export function pixelAt(event, canvas) {
    const box = canvas.getBoundingClientRect();
    const x = Math.floor(((event.clientX - box.left) * WIDTH) / box.width);
    const y = Math.floor(((event.clientY - box.top) * HEIGHT) / box.height);
    return x >= 0 && y >= 0 && x < WIDTH && y < HEIGHT ? { x, y } : null;
}
