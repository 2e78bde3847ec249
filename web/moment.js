// Places in the show as texts: "1:02.50", and the part of an address that leads to one, "#f=1810".
// Used by the page and its bar.

export const FRAMES_A_SECOND = 40;

// "0:45.25"
export function timeText(frame) {
    const seconds = frame / FRAMES_A_SECOND;
    return `${Math.floor(seconds / 60)}:${(seconds % 60).toFixed(2).padStart(5, "0")}`;
}

// "0:45", for where room is small
export function shortTime(frame) {
    return timeText(frame).slice(0, -3);
}

// "#f=1810" is a frame, "#t=62.5" seconds; null for anything else.
export function frameOfHash(hash) {
    const match = /^#(?:f=(\d{1,6})|t=(\d{1,4}(?:\.\d*)?))$/.exec(hash);
    if (!match) {
        return null;
    }
    return match[1] !== undefined ? Number(match[1]) : Math.floor(Number(match[2]) * FRAMES_A_SECOND);
}

export function hashOfFrame(frame) {
    return `#f=${frame}`;
}

// The index of the chapter that a frame belongs to; chapters: [{name, frame}], by frame.
export function chapterOf(chapters, frame) {
    let index = chapters.length - 1;
    while (index > 0 && chapters[index].frame > frame) {
        --index;
    }
    return index;
}

// The frame that "next chapter" (by 1) or "back" (by -1) leads to. Back goes to the beginning of
// this one first, unless that was a moment ago.
export function chapterFrom(chapters, frame, by) {
    const now = chapterOf(chapters, frame);
    const begun = frame - chapters[now].frame > FRAMES_A_SECOND;
    const to = Math.max(0, now + (by < 0 && begun ? 0 : by));
    return to < chapters.length ? chapters[to].frame : null;
}

// "3.4 MB", in millions of bytes.
export function megabytes(bytes) {
    return `${(bytes / 1e6).toFixed(1)} MB`;
}
