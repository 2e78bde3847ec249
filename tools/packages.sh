# Debian packages the project needs, and how the two commands get them. Read by `run` and `test`.

# To build and play.
PLAY_PACKAGES="g++ cmake ninja-build pkg-config libsdl2-dev libmp3lame-dev libpng-dev ffmpeg"
# To run every test: other compilers, sanitizers, the Windows builds and what plays them.
TEST_PACKAGES="$PLAY_PACKAGES python3 libgtest-dev libbenchmark-dev clang-14 libclang-rt-14-dev
 clang-format-14 clang-tidy-14 cppcheck g++-mingw-w64-x86-64 g++-mingw-w64-i686 wine wine64
 g++-aarch64-linux-gnu qemu-user-static wasi-libc libc++-14-dev-wasm32
 libclang-rt-14-dev-wasm32 lld-14
 desktop-file-utils appstream lintian fakeroot dpkg-dev groff-base
 xvfb libxtst6 x11-utils weston openbox python3-numpy python3-pil fonts-dejavu-core fonts-paratype
 wasi-libc libc++-14-dev-wasm32 libc++abi-14-dev-wasm32 libclang-rt-14-dev-wasm32 lld-14
 chromium firefox-esr pulseaudio"
# (node and npm are often there from elsewhere, and then Debian's cannot stand beside them.)
for program in node:nodejs npm:npm; do
    command -v "${program%:*}" >/dev/null 2>&1 || TEST_PACKAGES="$TEST_PACKAGES ${program#*:}"
done

# Installs those of the given packages that are missing; says what to do where it cannot.
need_packages() {
    if ! command -v dpkg-query >/dev/null 2>&1; then
        echo "note: this is no Debian system; install what these packages hold: $*" >&2
        return 0
    fi
    missing=""
    for package in "$@"; do
        state=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
        [ "$state" = installed ] || missing="$missing $package"
    done
    [ -n "$missing" ] || return 0
    sudo=""
    if [ "$(id -u)" != 0 ]; then
        if ! command -v sudo >/dev/null 2>&1; then
            echo "error: these packages are missing, and only root can install them:$missing" >&2
            return 1
        fi
        sudo=sudo
    fi
    echo "Installing:$missing"
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get -q update >/dev/null || true
    # shellcheck disable=SC2086
    $sudo env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install \
        $missing >build/install.log 2>&1 || {
        echo "error: the packages could not be installed; build/install.log says why" >&2
        return 1
    }
}
