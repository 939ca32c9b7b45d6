#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Gives the readers inputs that libFuzzer thinks up, two readers at a time: fuzz.sh BUILD [TARGET|all [SECONDS [RUNS]]]
# What ends a reader is kept in BUILD/found; what reached something new in BUILD/corpus, from which
# "kestrune-fuzz -merge=1 tests/fuzz/corpus/TARGET BUILD/corpus/TARGET" takes what is worth keeping.
set -euo pipefail

build=$1
seconds=${3:-60}
runs=${4:--1} # it ends after so many, too; -1 doesn't
corpus=tests/fuzz/corpus
if [ "${2:-all}" != all ]; then
    targets=("$2")
else
    targets=("$corpus"/*)
    targets=("${targets[@]##*/}")
fi
mkdir -p "$build/found" "$build/log"

export ASAN_OPTIONS=detect_leaks=1 LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
fuzz() {
    local target=$1
    mkdir -p "$build/corpus/$target" "$corpus/$target"
    if KESTRUNE_FUZZ_TARGET=$target "$build/bin/kestrune-fuzz" "-max_total_time=$seconds" "-runs=$runs" \
        -max_len=4096 -timeout=30 -rss_limit_mb=2048 -print_final_stats=1 "-artifact_prefix=$build/found/$target-" \
        "$build/corpus/$target" "$corpus/$target" >"$build/log/$target" 2>&1; then
        printf '%-20s %12s runs\n' "$target" "$(sed -n 's/^stat::number_of_executed_units: *//p' "$build/log/$target")"
    else
        tail -n 60 "$build/log/$target" >&2
        echo "fuzz: $target can't bear an input, which is in $build/found" >&2
        return 1
    fi
}
export -f fuzz
export build seconds runs corpus
printf '%s\n' "${targets[@]}" | xargs -P 2 -I '{}' bash -euo pipefail -c 'fuzz "$1"' fuzz '{}'
