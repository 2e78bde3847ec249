#!/bin/sh
# Start-up, the first frames of each scene and the end under valgrind: no error, no leak. Takes some
# minutes. tests/valgrind.sh [FRAMES [PROGRAM]]; needs the package valgrind and build/release with the
# tests. The plain fillers play: valgrind does not know every processor's widest vectors.
set -eu
cd "$(dirname -- "$0")/.."
# (The variable keeps the program from starting itself again.)
GLIBC_TUNABLES=glibc.malloc.tcache_count=0 RASTER_USE=scalar exec valgrind --error-exitcode=9 --leak-check=full --show-leak-kinds=definite,possible \
    --errors-for-leak-kinds=definite,possible --track-fds=yes \
    "${2:-build/release/soak}" --size 320x240 --data data --scenes "${1:-100}" 1
