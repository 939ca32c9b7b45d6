# SPDX-License-Identifier: GPL-3.0-or-later
# Shows what kestrune-rehearse prints of an Automatizer's job: the first lines of each section, and how many follow.

function clear_progress() { if (live) printf "\r\033[K" }
function end_section() {
    if (lines > most) { clear_progress(); printf "    ... and %d more\n", lines - most }
    lines = 0
}

BEGIN { most = 4 }
/^kestrune-rehearse: / { clear_progress(); print > "/dev/stderr"; next }
$2 == "AutomatizerAnalyze:finished" { end_section(); skipped = 1; next }
# An Optimize begins with an Analyze, which has been shown.
skip == "optimize" && !skipped { next }
$2 ~ /^pgr: / { end_section(); clear_progress(); printf "  %s%s%s\n", colour, substr($2, 6), plain; next }
$2 ~ /^pgr:max:/ { max = substr($2, 9); next }
$2 ~ /^pgr:value:/ { if (live && max > 0) { printf "\r\033[K  %d of %d", substr($2, 11), max; fflush() }; next }
$1 != "automatizerValueChanged" || $2 == "tweaksDone" { next }
$2 == "" { end_section(); next }
{ sub(/\\r\\n.*$/, "", $2); if (++lines <= most) { clear_progress(); printf "    %s\n", substr($2, 1, 110); fflush() } }
END { end_section(); clear_progress() }
