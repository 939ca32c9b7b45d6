#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Saves a picture of every page on fresh copies of the built-in machines: pictures.sh BIN FOLDER
set -euo pipefail

bin=$1
folder=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for machine in windows11 windows10; do
    "$bin/kestrune-rehearse" new "$work/$machine" --from "$machine"
    "$bin/kestrune-rehearse" tour "$work/$machine" --out "$folder/$machine"
done
