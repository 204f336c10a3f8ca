#!/usr/bin/env bash
# Renders the program's icon, desktop/quillet.svg, into the PNG sizes that desktops look for
# (desktop/icons/<size>x<size>/quillet.png). Needs rsvg-convert (Debian: librsvg2-bin).
#
# Usage: tools/draw-icon.sh
set -euo pipefail
top=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
for size in 16 24 32 48 64 128 256; do
    mkdir -p "$top/desktop/icons/${size}x${size}"
    rsvg-convert -w "$size" -h "$size" "$top/desktop/quillet.svg" -o "$top/desktop/icons/${size}x${size}/quillet.png"
done
