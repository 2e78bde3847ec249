#!/bin/sh
# Looks into the archives of the release, makes them a second time, unpacks each into an empty folder
# and starts it there.   tests/packages/run.sh [BUILD_DIR]      (default: build; archives in package/)
# One line a test, screenshots in BUILD_DIR/package-tests/screens, at the end `N passed, N failed`.
exec /usr/bin/python3 "$(dirname -- "$0")/run.py" "$@"
