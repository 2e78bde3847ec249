// The music: decoded by the browser, started at any place so that it is heard when its picture is
// seen. Times called `at` are milliseconds of performance.now(). Used by player.js.

const LEAD = 0.03; // seconds from the order to the first sound
const FADE = 0.006; // seconds; no start and stop clicks

export const RATE = 44100;

// Decodes a whole or cut MP3 file; the bytes are used up.
export async function decode(bytes) {
    const own = bytes.buffer.slice(bytes.byteOffset, bytes.byteOffset + bytes.length);
    return new OfflineAudioContext(2, 1, RATE).decodeAudioData(own);
}

// The second part of the music is cut so that it overlaps the first. This finds by how many samples
// it begins before the end of the first: browsers trim different amounts from the start of a file,
// so the place is known only nearly. Samples of one channel each; null when nothing fits.
export function overlapOf(first, second, expected) {
    const reach = 4000; // samples around the expected place
    const probe = Math.min(second.length, 12000) - 2048; // behind where the decoder has settled
    const length = 1500;
    if (probe < 0 || second.length < probe + length) {
        return null;
    }
    const power = second.subarray(probe, probe + length).reduce((sum, v) => sum + v * v, 0);
    let best = null;
    let least = power * 0.05 + 1e-6;
    for (let overlap = expected - reach; overlap <= expected + reach; ++overlap) {
        const start = first.length - overlap + probe;
        if (start < 0 || start + length > first.length) {
            continue;
        }
        let apart = 0;
        for (let i = 0; i < length && apart < least; ++i) {
            const d = first[start + i] - second[probe + i];
            apart += d * d;
        }
        if (apart < least) {
            least = apart;
            best = overlap;
        }
    }
    return best;
}

// One buffer of both parts. The first is kept to the middle of what they share.
export function joinParts(first, second, expectedSeconds) {
    const rate = first.sampleRate;
    const expected = Math.round(expectedSeconds * rate);
    const overlap = overlapOf(first.getChannelData(0), second.getChannelData(0), expected) ?? expected;
    const kept = first.length - (overlap >> 1);
    const skipped = overlap - (overlap >> 1);
    const whole = new AudioBuffer({
        numberOfChannels: first.numberOfChannels,
        length: kept + second.length - skipped,
        sampleRate: rate,
    });
    for (let channel = 0; channel < first.numberOfChannels; ++channel) {
        const out = whole.getChannelData(channel);
        out.set(first.getChannelData(channel).subarray(0, kept));
        out.set(second.getChannelData(channel).subarray(skipped), kept);
    }
    return whole;
}

export class Sound {
    constructor() {
        this.context = null;
        this.buffer = null; // AudioBuffer
        this.playing = null; // {source, fade, when, offset} of what plays
        this.loudness = 1;
        this.muted = false;
    }

    // Must be called while a click or key is answered, or browsers keep the page silent.
    unlock() {
        if (!this.context) {
            this.context = new AudioContext({ sampleRate: RATE, latencyHint: "interactive" });
            this.master = this.context.createGain();
            this.master.connect(this.context.destination);
            this.applyVolume();
        }
        this.context.resume().catch(() => {}); // (Without a device: the picture plays on.)
    }

    // 0 to 1
    setVolume(loudness, muted) {
        this.loudness = loudness;
        this.muted = muted;
        this.applyVolume();
    }

    applyVolume() {
        if (this.master) {
            // The ear hears powers: half the way on the slider shall sound half as loud.
            this.master.gain.value = this.muted ? 0 : this.loudness ** 2;
        }
    }

    // More of the music is there. What plays goes on.
    setBuffer(buffer) {
        this.buffer = buffer;
        if (this.playing) {
            const at = performance.now();
            this.playFrom(this.position(at), at);
        }
    }

    // Plays so that the place `seconds` is heard at the time `at`, and all others before and after.
    playFrom(seconds, at) {
        this.stop();
        if (!this.context || this.context.state !== "running" || !this.buffer) {
            return false;
        }
        const heard = this.heard();
        const when = this.context.currentTime + LEAD;
        // `when` is a time of the context; it is heard at this time of the page:
        const heardAt = heard.at + (when - heard.context) * 1000;
        const offset = seconds + (heardAt - at) / 1000;
        if (offset >= this.buffer.duration) {
            return false;
        }
        const source = new AudioBufferSourceNode(this.context, { buffer: this.buffer });
        const fade = new GainNode(this.context, { gain: 0 });
        source.connect(fade).connect(this.master);
        const start = when + Math.max(0, -offset);
        fade.gain.setValueAtTime(0, start);
        fade.gain.linearRampToValueAtTime(1, start + FADE);
        source.start(start, Math.max(0, offset));
        this.playing = { source, fade, when, offset };
        return true;
    }

    stop() {
        if (!this.playing) {
            return;
        }
        const { source, fade } = this.playing;
        const now = this.context.currentTime;
        fade.gain.cancelScheduledValues(now);
        fade.gain.setTargetAtTime(0, now, FADE / 3);
        source.stop(now + FADE * 2);
        this.playing = null;
    }

    // The place that is heard at this time, in seconds; null in silence.
    position(at) {
        if (!this.playing || this.context.state !== "running") {
            return null;
        }
        const heard = this.heard();
        return this.playing.offset + heard.context + (at - heard.at) / 1000 - this.playing.when;
    }

    // A time of the context and the time of the page at which it is heard.
    heard() {
        const late = this.context.outputLatency || this.context.baseLatency || 0;
        const plain = { context: this.context.currentTime - late, at: performance.now() };
        const stamp = this.context.getOutputTimestamp?.();
        if (!stamp || !stamp.contextTime || !stamp.performanceTime) {
            return plain;
        }
        const apart = plain.context - stamp.contextTime - (plain.at - stamp.performanceTime) / 1000;
        // (Stamps of a device that is starting or gone are old.)
        return Math.abs(apart) < 0.25 ? { context: stamp.contextTime, at: stamp.performanceTime } : plain;
    }
}
