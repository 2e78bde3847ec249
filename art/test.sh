#!/bin/sh
# Checks data/ against the renderer's limits, and against what the sources give without Blender.
# Usage: art/test.sh        (needs python3 with numpy and PIL, and the two fonts)
here=$(cd "$(dirname "$0")" && pwd)
PYTHON=${PYTHON:-/usr/bin/python3}
export PYTHONDONTWRITEBYTECODE=1
made=$(mktemp -d)
trap 'rm -rf "$made"' EXIT
status=0
"$PYTHON" "$here/check_world.py" "$here/../data" --flights >"$made/check.txt" || status=1
grep -E "WRONG|least|lines in the list|^data" "$made/check.txt"
mkdir "$made/data" "$made/cache"
"$PYTHON" "$here/world/make.py" "$made/data" "$made/cache" --plain || status=1
"$PYTHON" "$here/compare.py" "$made/data" "$here/../data" --unbaked || status=1
exit $status
