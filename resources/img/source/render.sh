#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the drawings of this folder to the images one folder up; "-w" are the white ones for the dark theme.
# Needs rsvg-convert (librsvg2-bin).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

for drawing in *.svg; do
    name=${drawing%.svg}
    rsvg-convert "$drawing" -o "../$name.png"
    [ "$name" = dropdown ] || sed 's/#303030/#ffffff/' "$drawing" | rsvg-convert -o "../$name-w.png"
done
