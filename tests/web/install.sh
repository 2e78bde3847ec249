#!/bin/sh
# Puts what drives the browsers beside the tests, from the npm registry, with the versions that the lock
# file names. Does nothing where they are there already.
set -eu
cd "$(dirname -- "$0")"
if cmp -s package-lock.json node_modules/.installed; then
    exit 0
fi
npm ci --no-audit --no-fund --ignore-scripts
cp package-lock.json node_modules/.installed
