#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the drawings of this folder to the images one folder up; "-w" are the white ones for the dark theme. Qt takes
# those with "@2x" by itself where a screen is scaled.
# Needs rsvg-convert (librsvg2-bin).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

# render SVG NAME: the image at its own size and at twice it
render() {
    rsvg-convert -o "../$2.png" <<<"$1"
    rsvg-convert --zoom 2 -o "../$2@2x.png" <<<"$1"
}

for drawing in *.svg; do
    name=${drawing%.svg}
    svg=$(<"$drawing")
    render "$svg" "$name"
    [ "$name" = dropdown ] || render "${svg//#303030/#ffffff}" "$name-w"
done
