#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Changes a rehearsal PC, looks whether it was changed as planned, takes all of it back, and looks whether anything is left:
# roundtrip.sh PROGRAMS SOURCE FOLDER. scripts/windows/roundtrip.ps1 does the same to a real PC; both only call the programs.
set -euo pipefail
programs=$1 source=$2 folder=$3
expected=$(dirname "${BASH_SOURCE[0]}")/roundtrip-expected.txt
restart_wanted=194 # 3010, of which Linux carries 8 bits

cli() { "$programs/kestrune-cli" "$@" --machine "$folder/pc"; }
rehearse() { "$programs/kestrune-rehearse" "$@"; }
# What capture does to a real PC
capture() { cp -a --sparse=always "$folder/pc" "$folder/$1"; }

rm -rf "$folder"/{pc,before,after,undone}
mkdir -p "$folder"
rehearse new "$folder/pc" --from "$source"
capture before
cli plan --json "$folder/plan.json" --html "$folder/plan.html"
status=0
cli apply --yes --json "$folder/applied.json" --log "$folder/applied.log" || status=$?
[[ $status == 0 || $status == "$restart_wanted" ]] || { echo "apply ended with $status" >&2; exit 1; }
cli verify --json "$folder/verified.json"
capture after
if rehearse diff "$folder/before" "$folder/after" --expect "$expected" --json >"$folder/changed.json"; then
    echo "nothing was changed" >&2
    exit 1
fi
cli undo --json "$folder/undone.json"
capture undone
rehearse diff "$folder/before" "$folder/undone" --expect "$expected"
