#!/bin/sh
# Plays larkfen on private X servers and tries larkfen-capture. Usage: run.sh BUILD_FOLDER
# [KEEP_FOLDER]. The last line counts: "N passed, N failed".
exec /usr/bin/python3 "$(dirname -- "$0")/run.py" "$@"
