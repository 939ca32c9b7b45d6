#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the program's icon in the sizes that Windows asks for. Needs rsvg-convert (librsvg2-bin) and imagemagick.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for size in 16 20 24 32 40 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" kestrune.svg -o "$work/$(printf '%03d' "$size").png"
done
convert "$work"/*.png kestrune.ico
