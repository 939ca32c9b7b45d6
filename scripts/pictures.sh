#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Saves a picture of every page on fresh copies of the built-in machines: pictures.sh BIN FOLDER
set -euo pipefail

bin=$1
folder=$2
pages=(optimizer services tasks autorun packages features information options about)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

mkdir -p "$folder"
for machine in windows11 windows10; do
    "$bin/kestrune-rehearse" new "$work/$machine" --from "$machine"
    for page in "${!pages[@]}"; do
        file=$folder/$machine-${pages[page]}.png
        QT_QPA_PLATFORM=offscreen "$bin/kestrune-picture" "$work/$machine" "$page" "$file"
        echo "$file"
    done
done
