#!/bin/sh
# Shows larkfen-inspect every defect it knows, once each. Usage: run.sh BUILD_FOLDER. The last line
# counts: "N passed, N failed".
exec /usr/bin/python3 "$(dirname -- "$0")/run.py" "$@"
