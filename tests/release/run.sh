#!/bin/sh
# Installs the programs into an empty folder and looks at everything a desktop and a package want.
# Usage: run.sh BUILD_FOLDER. The last line counts: "N passed, N failed".
exec /usr/bin/python3 "$(dirname -- "$0")/run.py" "$@"
