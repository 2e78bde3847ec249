#!/bin/sh
# Twenty whole productions in one process, every frame drawn: about twenty minutes. Nothing may grow.
# tests/soak.sh [COUNT]; needs build/release with the tests.
set -eu
cd "$(dirname -- "$0")/.."
exec build/release/soak "${1:-20}"
