#!/bin/sh
# Renders the soundtrack from its text sources: score, synthesis, mastering, MP3.
# Usage: build.sh [WORK_DIR [OUT.mp3]]   (needs python3, csound, ffmpeg, lame; see art/install.sh)
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
root=$(CDPATH='' cd -- "$here/../.." && pwd)
work=${1:-$root/build/music}
out=${2:-$root/data/sfx/soundtrack.mp3}
mkdir -p "$work" "$(dirname -- "$out")"
/usr/bin/python3 "$here/compose.py" "$work/soundtrack.sco"
csound -d -m0 -W --format=float -o "$work/mix.wav" "$here/soundtrack.orc" "$work/soundtrack.sco" \
    >"$work/csound.log" 2>&1 || { cat "$work/csound.log"; exit 1; }
# Master: rumble and direct current out, a little less mud, a light press, presence and air, then a
# limiter that works at four times the rate, so that peaks between samples are caught as well.
ffmpeg -nostdin -loglevel error -y -i "$work/mix.wav" -bitexact -af "\
highpass=f=28,equalizer=f=300:t=q:w=0.9:g=-1.5,\
acompressor=threshold=-18dB:ratio=1.5:attack=30:release=250:makeup=1,\
equalizer=f=3800:t=q:w=0.8:g=0.9,treble=g=0.8:f=9000:t=q:w=0.7,\
volume=9.8dB,aresample=176400,\
alimiter=limit=0.78:attack=4:release=90:level=false,aresample=44100,\
afade=t=out:st=188:d=6" -t 194.5 -c:a pcm_s24le "$work/master.wav"
# The field "sources" tells check_music.py what the file was made from.
made=$(cat "$work/soundtrack.sco" "$here/soundtrack.orc" "$here/build.sh" | sha256sum | cut -c 1-16)
lame --quiet -b 192 --cbr -q 0 -m j --add-id3v2 --tt "Ombrel" --ta "dru3 of Quellant" \
    --tl "Ombrel" --ty 2026 --tv "TXXX=sources=$made" "$work/master.wav" "$out"
