// Starts the two browsers without a screen, and a sound device that nobody hears: a server of our own
// with an empty sink, so that the clocks of the sound run.
import { spawn } from "node:child_process";
import { existsSync, mkdtempSync, rmSync } from "node:fs";
import { tmpdir } from "node:os";
import path from "node:path";
import puppeteer from "puppeteer-core";
import { until } from "./suite.mjs";

const PATHS = {
    chrome: process.env.OMBREL_CHROMIUM ?? "/usr/bin/chromium",
    firefox: process.env.OMBREL_FIREFOX ?? "/usr/bin/firefox-esr",
};
// No service of the browser's own is asked, and a sandbox is not to be had as root.
const CHROMIUM_SWITCHES = [
    "--no-sandbox", "--disable-gpu", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync", "--disable-quic",
];
const FIREFOX_PREFERENCES = {
    "app.update.enabled": false, "browser.safebrowsing.downloads.enabled": false,
    "datareporting.policy.dataSubmissionEnabled": false, "toolkit.telemetry.enabled": false,
    "full-screen-api.allow-trusted-requests-only": false, "full-screen-api.transition.timeout": 0,
    "full-screen-api.warning.timeout": 0,
};

export class SoundDevice {
    async start() {
        this.folder = mkdtempSync(path.join(tmpdir(), "ombrel-sound-"));
        const socket = path.join(this.folder, "native");
        this.process = spawn("pulseaudio", [
            "-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm=yes",
            "-L", `module-native-protocol-unix socket=${socket} auth-anonymous=1`,
            "-L", "module-null-sink rate=44100",
        ], { stdio: "ignore", env: { ...process.env, HOME: this.folder, XDG_RUNTIME_DIR: this.folder } });
        this.process.on("error", () => {});
        await until("pulseaudio answers (is it installed?)", () => existsSync(socket), 20);
        return `unix:${socket}`;
    }

    stop() {
        this.process?.kill();
        rmSync(this.folder, { recursive: true, force: true });
    }
}

export async function startBrowser(name, soundServer) {
    return puppeteer.launch({
        browser: name,
        executablePath: PATHS[name],
        headless: true,
        args: name === "chrome" ? CHROMIUM_SWITCHES : [],
        extraPrefsFirefox: FIREFOX_PREFERENCES,
        env: { ...process.env, PULSE_SERVER: soundServer },
        protocolTimeout: 600000,
    });
}

// A page of its own in a fresh profile. `notes` collects what goes wrong in it.
export async function newPage(browser, size = { width: 1280, height: 800 }) {
    const context = await browser.createBrowserContext();
    const page = await context.newPage();
    await page.setViewport(size);
    const notes = [];
    page.on("console", (message) => {
        if (["error", "warn", "warning"].includes(message.type())) {
            notes.push(`${message.type()}: ${message.text()}`);
        }
    });
    page.on("pageerror", (fault) => notes.push(`fault: ${fault.message}`));
    return { page, notes, close: () => context.close() };
}
