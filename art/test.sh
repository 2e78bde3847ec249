#!/bin/sh
# Checks data/ against the renderer's limits, the soundtrack against its measures, the checks against
# data broken on purpose, and data/ against what the sources give without Blender and the soundtrack.
# Usage: art/test.sh        (needs python3 with numpy and PIL, ffmpeg, and the two fonts)
# The pictures that the production draws are checked once the recorder is built:
#        art/check_world.py data --frames build/release/larkfen-capture
here=$(cd "$(dirname "$0")" && pwd)
PYTHON=${PYTHON:-/usr/bin/python3}
export PYTHONDONTWRITEBYTECODE=1
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
status=0

# Two at a time: the checks look along the flights while the sources are made into files.
{
    "$PYTHON" "$here/check_world.py" "$here/../data" --flights >"$made/check.txt" ||
        touch "$made/wrong"
} &
mkdir "$made/data" "$made/cache"
"$PYTHON" "$here/world/make.py" "$made/data" "$made/cache" --plain || status=1
"$PYTHON" "$here/compare.py" "$made/data" "$here/../data" --unbaked || status=1
"$PYTHON" "$here/check_test.py" || status=1
"$PYTHON" "$here/music/check_music.py" >"$made/music.txt" || status=1
grep -E "^WRONG|^        |missed" "$made/music.txt"
"$PYTHON" "$here/music/check_music_test.py" || status=1

# A bake that fails, with or without saying so, stops the build before it makes a file.
stops=0
for code in 0 3; do
    printf '#!/bin/sh\necho "RuntimeError: pretended"\nexit %s\n' $code >"$made/blender"
    chmod +x "$made/blender"
    if ! BLENDER="$made/blender" OMBREL_ART_CACHE="$made/empty" \
        "$here/build.sh" --data "$made/none" --no-music >/dev/null 2>&1 &&
        [ -z "$(ls "$made/none")" ]; then
        stops=$((stops + 1))
    fi
done
echo "$stops passed, $((2 - stops)) failed"
[ $stops = 2 ] || status=1

wait
grep -E "WRONG|least|lines in the list|^data" "$made/check.txt"
[ ! -e "$made/wrong" ] || status=1
exit $status
