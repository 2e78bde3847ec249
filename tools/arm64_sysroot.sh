#!/bin/sh
# Libraries of Debian's arm64 architecture in build/sysroot-arm64, for the preset arm64 and for
# running what it builds under an emulator. The package system only downloads here, with
# own lists and records: nothing is installed. Does nothing when they are there already.
#
#   tools/arm64_sysroot.sh && cmake --workflow --preset arm64
#   qemu-aarch64-static -L build/sysroot-arm64 build/arm64/larkfen-capture --help
set -eu
cd "$(dirname -- "$0")/.."
# With all that they need to run ...
WHOLE="libc6-dev libstdc++6 libsdl2-2.0-0 zlib1g-dev libgtest-dev libbenchmark1debian"
# ... and headers alone, whose packages ask for much more than we include.
ALONE="libsdl2-dev libmp3lame-dev libpng-dev libpng16-16 libbenchmark-dev libx11-dev libxext-dev
 libxfixes-dev libxi-dev x11proto-dev"

sysroot=$PWD/build/sysroot-arm64
work=$PWD/build/sysroot-arm64.part
[ "$(cat "$sysroot/packages" 2>/dev/null)" != "$WHOLE $ALONE" ] || exit 0
command -v apt-get >/dev/null || {
    echo "error: no apt-get here; put the arm64 files of these packages into $sysroot: $WHOLE $ALONE" >&2
    exit 1
}
rm -rf "$work" "$sysroot"
mkdir -p "$work/lists/partial" "$work/cache/archives/partial" "$work/root"
: >"$work/status"
# Sources and keys are those of the system; everything that is written stands below build/.
cat >"$work/apt.conf" <<END
APT::Architecture "arm64";
APT::Architectures { "arm64"; };
APT::Sandbox::User "root";
Acquire::Languages "none";
Dir::State "$work";
Dir::State::status "$work/status";
Dir::Cache "$work/cache";
END
export APT_CONFIG="$work/apt.conf"
echo "Fetching libraries for arm64 ..."
{
    # shellcheck disable=SC2086
    apt-get -q update &&
        apt-get -q -y --no-install-recommends --download-only install $WHOLE &&
        cd "$work/cache/archives" && apt-get -q download $ALONE && cd "$OLDPWD"
} >build/sysroot-arm64.log 2>&1 || {
    echo "error: they could not be fetched; build/sysroot-arm64.log says why" >&2
    exit 1
}
for package in "$work"/cache/archives/*.deb; do
    dpkg-deb -x "$package" "$work/root"
done
# Links lead through the folder, not through this system; what a library needs inside is not asked for.
find "$work/root/usr/lib" -lname '/*' | while read -r link; do
    ln -sfr "$work/root$(readlink "$link")" "$link"
done
sed -i '/^Requires.private/d' "$work/root/usr/lib/aarch64-linux-gnu/pkgconfig/"*.pc
echo "$WHOLE $ALONE" >"$work/root/packages"
mv "$work/root" "$sysroot"
rm -rf "$work"
