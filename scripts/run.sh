#!/usr/bin/env bash
# Sets everything up, builds the reader and opens it on the sample book. On a
# machine without a display it writes a PNG of the window and prints its path.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh release
bin="build/release/bin"
book="$bin/Vireo"
[ -x "$bin/samples/Genesis" ] && book="$bin/samples/Genesis"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$book"
fi
picture="${VIREO_PICTURE:-$PWD/build/vireo-window.png}"
QT_QPA_PLATFORM=offscreen VIREO_NONINTERACTIVE=1 VIREO_SCREENSHOT="$picture" "$book"
