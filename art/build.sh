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
export PYTHONDONTWRITEBYTECODE=1 PYTHONHASHSEED=0
"$PYTHON" "$here/world/make.py" "$data" "$cache"
"$PYTHON" "$here/check_world.py" "$data"
