#!/bin/sh
# Runs the Windows programs of a build folder under Wine and a virtual X server.
#     tests/windows/run.sh BUILD_DIR [--quick] [--only PATTERN] [--list]
# One line a case, screenshots in BUILD_DIR/windows-tests/screens, at the end `N passed, N failed`.
exec /usr/bin/python3 "$(dirname -- "$0")/suite.py" "$@"
