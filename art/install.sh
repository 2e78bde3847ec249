#!/bin/sh
# Installs what art/build.sh needs, from Debian packages.  Needs root or sudo.
set -e
PACKAGES="blender python3 python3-numpy python3-pil fonts-dejavu-core fonts-paratype
          csound lame ffmpeg"
SUDO=
[ "$(id -u)" = 0 ] || SUDO=sudo
missing=
for p in $PACKAGES; do
    dpkg -s "$p" >/dev/null 2>&1 || missing="$missing $p"
done
[ -z "$missing" ] || $SUDO apt-get install -y --no-install-recommends $missing
