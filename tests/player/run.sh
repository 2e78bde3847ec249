#!/bin/sh
# Plays larkfen-player on private X servers, with keys and mouse. Usage: run.sh BUILD_FOLDER
# [--quick] [KEEP_FOLDER]. The last line counts: "N passed, N failed".
exec /usr/bin/python3 "$(dirname -- "$0")/run.py" "$@"
