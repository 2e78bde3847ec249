#!/bin/sh
# Makes every file of data/ from the text sources of this folder.
# Usage: art/build.sh [--data DIR] [--no-music]     (default: data/ beside art/)
set -e
here=$(cd "$(dirname "$0")" && pwd)
data=$here/../data
music=1
while [ $# -gt 0 ]; do
    case $1 in
        --data) data=$2; shift ;;
        --no-music) music= ;;
        *) sed -n 2,3p "$0"; exit 2 ;;
    esac
    shift
done
cache=${OMBREL_ART_CACHE:-$here/../build/art-cache}
mkdir -p "$data" "$cache/bake"
PYTHON=${PYTHON:-/usr/bin/python3}
BLENDER=${BLENDER:-blender}
export PYTHONDONTWRITEBYTECODE=1 PYTHONHASHSEED=0
"$PYTHON" "$here/world/bake_jobs.py" "$cache"
if grep -q '"name"' "$cache/jobs.json"; then
    # A bake that fails stops the build: no data is made from what it left behind.
    if ! "$BLENDER" -b --factory-startup -noaudio --python-exit-code 3 -P "$here/world/bake.py" -- \
        "$cache/jobs.json" >"$cache/bake.log" 2>&1 || ! grep -q "^all baked$" "$cache/bake.log"
    then
        grep -E "^(baked|light|Traceback|Error|  File|[A-Za-z]*Error)" "$cache/bake.log" ||
            tail -n 20 "$cache/bake.log"
        echo "error: a bake failed; the whole log: $cache/bake.log" >&2
        exit 1
    fi
    grep -E "^(baked|light)" "$cache/bake.log"
fi
mv "$cache/marks.new.json" "$cache/marks.json"
"$PYTHON" "$here/world/make.py" "$data" "$cache"
if [ "$data" = "$here/../data" ]; then
    [ -z "$music" ] || "$here/music/build.sh"
    "$PYTHON" "$here/world/manifest.py" "$data" "$here/MANIFEST"
else
    mkdir -p "$data/sfx"
    cp "$here/../data/sfx/soundtrack.mp3" "$data/sfx/"
fi
"$PYTHON" "$here/check_world.py" "$data" --flights
