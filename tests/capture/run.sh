#!/bin/sh
# Records short stretches as release videos, moving pictures and videos in pieces, and looks at what
# came of them. Usage: run.sh BUILD_FOLDER. The last line counts: "N passed, N failed".
exec /usr/bin/python3 "$(dirname -- "$0")/run.py" "$@"
