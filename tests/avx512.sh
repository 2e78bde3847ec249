#!/bin/sh
# The AVX-512 path where no processor has it: the unit tests of its name, and frames of both scenes
# against the stored ones, on an emulated Skylake-X. Half an hour or more. tests/avx512.sh [FRAMES] (20);
# needs build/release with the tests, and the packages bochs bochs-x bochsbios vgabios xvfb xauth xorriso
# isolinux syslinux-common busybox-static cpio linux-image-cloud-amd64 (its kernel is only read).
# The console stands in build/avx512/console.txt. At the end `N passed, N failed`.
set -eu
cd "$(dirname -- "$0")/.."
frames=${1:-20}
release=$PWD/build/release
work=$PWD/build/avx512
kernel=$(find "${KERNEL_DIR:-/boot}" -name 'vmlinuz-*' | sort | tail -n 1)
[ -n "$kernel" ] || { echo "error: no kernel in ${KERNEL_DIR:-/boot}" >&2; exit 2; }
rm -rf "$work"
mkdir -p "$work/root/bin" "$work/root/proc" "$work/root/dev" "$work/root/tmp" "$work/disc/isolinux"
cd "$work"

# A system of one shell script, our programs and the libraries that they load.
cp "$(command -v busybox)" root/bin/busybox
cp -r "$release/../../data" root/data
for program in unit_raster unit_scene unit_demo larkfen-capture; do
    cp "$release/$program" root/
    for library in $(ldd "$release/$program" | grep -oE '/[^ ]+\.so[^ ]*'); do
        mkdir -p "root$(dirname "$library")"
        cp -L "$library" "root$library"
    done
done
cat >root/init <<EOF
#!/bin/busybox sh
busybox() { /bin/busybox "\$@"; }
busybox mount -t proc proc /proc
busybox mount -t devtmpfs dev /dev
exec >/dev/ttyS0 2>&1
busybox grep -m1 -o avx512bw /proc/cpuinfo || echo "no avx512"
export OMBREL_RANDOM_SHARE=0.1
for unit in raster scene demo; do
    /unit_\$unit --gtest_filter='*avx512*' --gtest_color=no --gtest_brief=1
    echo "unit_\$unit code \$?"
done
export RASTER_USE=avx512
cd /tmp
for scene in 0 1; do
    /larkfen-capture -w -ns --data /data --switch sceneIndex=\$scene --frames 0:$frames --hashes \$scene
    busybox sed "s/^/scene\$scene /" \$scene
done
echo "all done"
busybox sleep 3
busybox poweroff -f
EOF
chmod +x root/init
(cd root && find . | cpio -o -H newc 2>/dev/null) | gzip -1 >disc/isolinux/initrd.gz
cp "$kernel" disc/isolinux/vmlinuz
cp /usr/lib/ISOLINUX/isolinux.bin /usr/lib/syslinux/modules/bios/ldlinux.c32 disc/isolinux/
# (The emulator's sizes of saved registers are not those of the compact format.)
cat >disc/isolinux/isolinux.cfg <<'EOF'
DEFAULT tests
LABEL tests
 KERNEL vmlinuz
 INITRD initrd.gz
 APPEND console=ttyS0 quiet mitigations=off nokaslr tsc=reliable lpj=1000000 clearcpuid=xsavec,xsaves
EOF
xorriso -as mkisofs -quiet -o disc.iso -b isolinux/isolinux.bin -c isolinux/boot.cat -no-emul-boot \
    -boot-load-size 4 -boot-info-table disc
cat >emulator.txt <<'EOF'
cpu: model=corei7_skylake_x, count=1, ips=40000000
memory: guest=512, host=512
romimage: file=/usr/share/bochs/BIOS-bochs-latest
vgaromimage: file=/usr/share/bochs/VGABIOS-lgpl-latest
display_library: x
ata0-master: type=cdrom, path=disc.iso, status=inserted
boot: cdrom
com1: enabled=1, mode=file, dev=console.txt
log: emulator.log
panic: action=fatal
clock: sync=none
EOF
# (Its debugger waits for "c"; switching the machine off counts as a panic.)
echo c | xvfb-run -a bochs -q -f emulator.txt >emulator.out 2>&1 || true

# What the same programs say here: units without a failure, frames of the plain fillers.
good=0
bad=0
count() { if "$@" >/dev/null 2>&1; then good=$((good + 1)); else bad=$((bad + 1)); echo "FAILED: $*"; fi; }
count grep -q "^all done" console.txt
count grep -q "^avx512bw" console.txt
for unit in raster scene demo; do
    count grep -q "^unit_$unit code 0" console.txt
done
tests=$(grep -oE 'PASSED  \] [0-9]+' console.txt | awk '{ sum += $3 } END { print sum + 0 }')
skipped=$(grep -c '  SKIPPED ' console.txt || true)
count test "$tests" -gt 50 -a "$skipped" = 0
for scene in 0 1; do
    RASTER_USE=scalar "$release/larkfen-capture" -w -ns --data root/data --switch sceneIndex=$scene \
        --frames "0:$frames" --hashes "here$scene" >/dev/null
    tr -d '\r' <console.txt | sed -n "s/^scene$scene //p" >"there$scene"
    count test "$(wc -l <"there$scene")" = "$frames"
    count cmp "here$scene" "there$scene"
done
echo "$tests tests on the emulated processor; frames compared: $frames of each scene"
echo "$good passed, $bad failed"
[ "$bad" = 0 ]
