# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# A desk under Wine: a throw-away prefix and a virtual display. Runs inside the root. Sourced by scripts/windows.sh.

readonly desk_logs=$inside_build/logs

# Lines that say that something crashed, whoever prints them
crash_words='Unhandled exception|Unhandled page fault|page fault on|A crash occurred|Received a fatal error'
readonly crash_words="$crash_words|Assertion failed"
# Messages of Qt's own that say nothing about Kestrune, as one extended regular expression: a virtual display is no
# monitor.
readonly allowed_warnings='Unable to open monitor interface'

declare -A windows_builds=([win10]=19045 [win11]=26100)
declare -A windows_machines=([win10]=windows10 [win11]=windows11)

# desk_begin VERSION [LOGS]: win10 or win11. Everything that Wine starts writes into files, never into a pipe, which the
# programs that it leaves running would keep open; and the display comes first, else its desktop has no screen.
desk_begin() {
    desk_log=$desk_logs/${2:-$1}
    rm -rf "$desk_log"
    mkdir -p "$desk_log"
    export WINEPREFIX=$inside_making/prefix WINEDEBUG=-all WINEDLLOVERRIDES='winemenubuilder.exe,mscoree,mshtml='
    export QT_FORCE_STDERR_LOGGING=1
    rm -rf "$WINEPREFIX"
    start_display
    quietly boot 120 wineboot -i
    quietly version 60 winecfg -v "$1"
    local key='HKLM\Software\Microsoft\Windows NT\CurrentVersion' name
    for name in CurrentBuild CurrentBuildNumber; do set_value "$key" "$name" REG_SZ "${windows_builds[$1]}"; done
    set_value "$key" ProductName REG_SZ "Windows 10 Home"
    # A crash is told in the log, not in a box that nobody answers.
    set_value 'HKCU\Software\Wine\WineDbg' ShowCrashDialog REG_DWORD 0
}

start_display() {
    local number=$inside_making/display
    : >"$number"
    Xvfb -displayfd 5 -screen 0 1280x900x24 -noreset -nolisten tcp 5>"$number" >"$desk_log/display.txt" 2>&1 &
    display_process=$!
    local waited
    for ((waited = 0; waited < 200; ++waited)); do
        [[ -s $number ]] && break
        sleep 0.05
    done
    [[ -s $number ]] || { cat "$desk_log/display.txt" >&2; fail "the virtual display doesn't start"; }
    DISPLAY=:$(<"$number")
    export DISPLAY
}

desk_end() {
    wineserver -k || true
    wineserver -w
    kill "$display_process" || true
    wait "$display_process" || true
    rm -rf "$WINEPREFIX"
}

# quietly NAME SECONDS PROGRAM…: runs a program whose output is of interest only if it fails or crashes
quietly() {
    local log=$desk_log/$1.txt status=0
    timeout -k 5 "$2" "${@:3}" >"$log" 2>&1 </dev/null || status=$?
    if ((status)) || grep -qE "$crash_words" "$log"; then
        tail -n 60 "$log" >&2
        grep -shE -A4 '^(FAIL|QFATAL|XPASS)' "$desk_log/$1.qtest" "$inside_build"/tests/*/tst_*.txt >&2 || true
        fail "$1 under Wine: exit code $status; the whole output is in build/windows/logs"
    fi
}

# run_qtest NAME PROGRAM [ARGUMENT…]: its own log, for without a console Qt Test tells the debugger and nobody else
run_qtest() {
    quietly "$1" 300 wine "$2" "${@:3}" -o "Z:$desk_log/$1.qtest,txt"
    without_warnings "$1"
}

# without_warnings NAME: no message of Qt in the log of that name but the allowed ones
without_warnings() {
    local found
    grep -q '^Totals: .* 0 failed' "$desk_log/$1.qtest" || fail "$1 under Wine: no test was run"
    found=$(grep -hE '^(QWARN|QCRITICAL|QFATAL|QSYSTEM)[ :]|^(qt\.|Qt|Q[A-Z][A-Za-z]+(::|:))' \
        "$desk_log/$1.txt" "$desk_log/$1.qtest" |
        grep -vE "$allowed_warnings" || true)
    [[ -z $found ]] || { printf '%s\n' "$found" >&2; fail "$1 under Wine: warnings"; }
}

# set_value KEY NAME TYPE DATA
set_value() { quietly reg-add 60 wine reg add "$1" /v "$2" /t "$3" /d "$4" /f; }

# value KEY NAME: what Wine's own reg.exe says; nothing where there is none
value() {
    wine reg query "$1" /v "$2" >"$desk_log/reg-query.txt" 2>&1 </dev/null || return 0
    tr -d '\r' <"$desk_log/reg-query.txt" | sed -nE 's/^ +.+ +REG_[A-Z_]+ +//p'
}

# expect WHAT IS SHOULD
expect() {
    [[ $2 == "$3" ]] || fail "$1 is '$2' and should be '$3'"
}
