# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# The stage "rehearse": a PC under Wine is captured there and rehearsed on here. Sourced by scripts/windows.sh.

rehearse_key() { echo always; }
rehearse_stamp() { :; }
rehearse_says() { echo "captures a PC under Wine, and rehearses on it with the dev build of Linux; about 2 minutes"; }
rehearse_make() {
    local program=$source_folder/build/dev/bin/kestrune-rehearse captured=$source_folder/build/windows/captured version
    [[ -x $program && -x ${program%/*}/tests_preview ]] || fail "rehearse: the dev build is missing; ./dev test makes it"
    in_root --caller inside_capture
    for version in win10 win11; do
        rehearse_on "$program" "$captured/$version"
        compare_status "${program%/*}/kestrune-cli" "$captured/$version"
        "$program" preview "$captured/$version-neutral" >/dev/null || fail "rehearse: the neutral capture gives no preview"
    done
}

# rehearse_on PROGRAM MACHINE: opens the captured PC, looks at it, and lets Optimize loose on a copy
rehearse_on() {
    local services applications version=${2##*/} found
    services=$("$1" list "$2" services | wc -l)
    applications=$("$1" list "$2" packages | wc -l)
    ((services > 100 && applications > 50)) || fail "rehearse: $services services and $applications packages were captured"
    found=$("$1" run "$2" analyze | grep -c 'can be') || fail "rehearse: Analyze finds nothing on the captured PC"
    # The same round trip as on the built-in PCs: previewed, optimized, and taken back to the last value
    KESTRUNE_CAPTURED_PC=$2 QT_QPA_PLATFORM=offscreen "${1%/*}/tests_preview" tst_undo undoGivesTheMachineBefore:captured \
        >"$2-undo.txt" 2>&1 || { cat "$2-undo.txt" >&2; fail "rehearse: the captured PC can't be taken back"; }
    say "rehearse: $version: $services services and $applications packages captured, $found findings, taken back"
}

# compare_status PROGRAM MACHINE: what the console program reads of the PC itself is what it reads of the captured one
compare_status() {
    "$1" status --machine "$2" --not-elevated --profile "${2%/*}/profile.json" --json "$2-status-here.json" >/dev/null ||
        fail "rehearse: no status of $2"
    diff <(grep -v '"profile"' "$2-status.json") <(grep -v '"profile"' "$2-status-here.json") >&2 ||
        fail "rehearse: the status of the PC isn't that of the captured one"
    say "rehearse: ${2##*/}: $(grep -c '"wish"' "$2-status.json") things have the same state on the PC and on its copy"
}

# capture_into FOLDER [OPTION…]
capture_into() {
    quietly "capture-$1" 120 wine "$inside_build/bin/kestrune-rehearse.exe" capture "Z:$inside_build/captured/$1" "${@:2}"
}

inside_capture() {
    local version
    rm -rf "$inside_build/captured"
    mkdir -p "$inside_build/captured"
    # The boot options are for administrators alone, and the capture isn't one's.
    echo '{"formatVersion": 1, "tweaks": {"gaming5": false, "gaming7": false}}' >"$inside_build/captured/profile.json"
    for version in win10 win11; do
        desk_begin "$version" "capture-$version"
        mkdir -p "$inside_making/trial"
        lay_pc "$version"
        capture_into "$version" --with-names # a way back needs them
        capture_into "$version-neutral"
        quietly "status-$version" 120 wine "$inside_build/bin/kestrune-cli.exe" status \
            --profile "Z:$inside_build/captured/profile.json" --json "Z:$inside_build/captured/$version-status.json"
        desk_end
        ! grep -rqaiE '[\\/]users[\\/]+'"$USER" "$inside_build/captured/$version-neutral" ||
            fail "rehearse: the name of the user stands in the captured machine"
    done
    rm -rf "$inside_making/trial"
}
