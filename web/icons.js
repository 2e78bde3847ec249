// The signs on the buttons: paths on a field of 24 x 24, drawn for this page.
const PATHS = {
    play: "M7 4.5v15l12.5-7.5z",
    pause: "M6 4.5h4.2v15H6zM13.8 4.5H18v15h-4.2z",
    back: "M5 5h2.6v14H5zM19 5v14L9 12z",
    next: "M16.4 5H19v14h-2.6zM5 5l10 7-10 7z",
    sound: "M4 9h4l5-4.5v15L8 15H4zM15.5 8.2l1.2-1.4a7 7 0 0 1 0 10.4l-1.2-1.4a5 5 0 0 0 0-7.6z",
    mute: "M4 9h4l5-4.5v15L8 15H4zM15.2 9.6l1.4-1.4 2.1 2.2 2.1-2.2 1.4 1.4-2.2 2.1 2.2 2.1-1.4 1.4-2.1-2.2-2.1 2.2-1.4-1.4 2.2-2.1z",
    figures: "M4 19V5h2v14zM8.5 19v-6h3v6zM13 19V9h3v10zM17.5 19v-8h3v8z",
    shot: "M9 5h6l1.5 2H20a1 1 0 0 1 1 1v10a1 1 0 0 1-1 1H4a1 1 0 0 1-1-1V8a1 1 0 0 1 1-1h3.5zM12 8.8a4.2 4.2 0 1 0 0 8.4 4.2 4.2 0 0 0 0-8.4zm0 2a2.2 2.2 0 1 1 0 4.4 2.2 2.2 0 0 1 0-4.4z",
    link: "M10.6 13.4a1 1 0 0 1-1.4 1.4 4 4 0 0 1 0-5.7l3-3a4 4 0 0 1 5.7 5.7l-1.3 1.3a6 6 0 0 0-.2-2.2l.1-.5a2 2 0 0 0-2.9-2.9l-3 3a2 2 0 0 0 0 2.9zM13.4 10.6a1 1 0 0 1 1.4-1.4 4 4 0 0 1 0 5.7l-3 3a4 4 0 0 1-5.7-5.7l1.3-1.3a6 6 0 0 0 .2 2.2l-.1.5a2 2 0 0 0 2.9 2.9l3-3a2 2 0 0 0 0-2.9z",
    fit: "M3 5h18v14H3zM5 7v10h14V7zM7 9h4v2H9v2H7zM17 15h-4v-2h2v-2h2z",
    full: "M4 4h6v2H6v4H4zM14 4h6v6h-2V6h-4zM4 14h2v4h4v2H4zM18 14h2v6h-6v-2h4z",
    window: "M8 4h2v6H4V8h4zM14 4h2v4h4v2h-6zM4 14h6v6H8v-4H4zM14 14h6v2h-4v4h-2z",
    end: "M6.4 5 12 10.6 17.6 5 19 6.4 13.4 12l5.6 5.6-1.4 1.4L12 13.4 6.4 19 5 17.6l5.6-5.6L5 6.4z",
};

// Puts a sign into a button.
export function setIcon(button, name) {
    if (button.dataset.icon !== name) {
        button.dataset.icon = name;
        button.innerHTML = `<svg viewBox="0 0 24 24" aria-hidden="true"><path fill-rule="evenodd" d="${PATHS[name]}"/></svg>`;
    }
}
