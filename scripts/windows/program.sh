# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# The stages "build", "bytes" and "clang": the programs, whether they come out the same again, and what another compiler
# says of their sources. Sourced by scripts/windows.sh.

# What is packed; the tests are built beside them.
readonly programs=(kestrune kestrune-cli kestrune-rehearsal kestrune-rehearse kestrune-stocktool)

# --- build -----------------------------------------------------------------------------------------------------------

# ninja itself knows what is out of date.
build_key() { echo always; }
build_stamp() { :; }
build_says() { echo "kestrune.exe and the tests; about 8 minutes on two cores from nothing"; }
build_make() {
    in_root --caller inside_build_programs
    say "kestrune.exe has $(stat -c %s "$source_folder/build/windows/bin/kestrune.exe") bytes"
}

inside_build_programs() {
    export CCACHE_DIR=$inside_making/ccache CCACHE_MAXSIZE=2G
    export CCACHE_DEPEND=1 CCACHE_SLOPPINESS=pch_defines,time_macros # as in ./dev
    take_toolchain windows "$inside_build"
    [[ -e $inside_build/build.ninja && ${KESTRUNE_WEB_HOST:-$(web_host)} == "$(web_host)" ]] ||
        configure windows "$inside_source" "$inside_build"
    cmake --build "$inside_build" --parallel "$jobs" --target "${programs[@]}" wine_tests
    local program
    for program in "${programs[@]}"; do
        check_imports "$program"
        check_header "$program"
    done
}

# take_toolchain PRESET FOLDER: what the toolchain says of the compiler is taken in once, by a fresh start.
take_toolchain() {
    ! cmp -s "$inside_source/cmake/mingw-w64.cmake" "$2/.toolchain" || return 0
    configure "$1" "$inside_source" "$2" --fresh
    cp "$inside_source/cmake/mingw-w64.cmake" "$2/.toolchain"
}

# configure PRESET SOURCES FOLDER [OPTION…]
configure() {
    (cd "$2" && cmake --preset "$1" -B "$3" ${KESTRUNE_WEB_HOST:+"-DKESTRUNE_WEB_HOST=$KESTRUNE_WEB_HOST"} "${@:4}") >"$inside_making/configure.log" 2>&1 ||
        { tail -n 30 "$inside_making/configure.log" >&2; fail "could not be configured"; }
}

# web_host: the host that the programs were built with
web_host() { sed -n 's/^KESTRUNE_WEB_HOST:STRING=//p' "$inside_build/CMakeCache.txt"; }

# check_imports PROGRAM: it may need the DLLs of Windows, which Wine has too, and no others.
check_imports() {
    local dll
    while read -r dll; do
        [[ ${dll,,} == api-ms-win-* || -e /usr/lib/x86_64-linux-gnu/wine/x86_64-windows/${dll,,} ]] ||
            fail "$1.exe needs $dll, which is no part of Windows"
    done < <(x86_64-w64-mingw32-objdump -p "$inside_build/bin/$1.exe" | sed -n 's/^\s*DLL Name: //p')
}

# check_header PROGRAM: Windows puts it anywhere in memory, runs no data, and takes its DLLs from the system's folder, since
# others may have put some beside the program; and its own functions look after their stack.
check_header() {
    local file=$inside_build/bin/$1.exe header base address section offset word
    header=$(x86_64-w64-mingw32-objdump -p "$file")
    for word in DYNAMIC_BASE HIGH_ENTROPY_VA NX_COMPAT; do
        grep -qw "$word" <<<"$header" || fail "$1.exe lacks $word"
    done
    ! grep -q '^Entry 5 0* 0* ' <<<"$header" || fail "$1.exe can't be put elsewhere in memory: it has no relocations"
    base=$(sed -n 's/^ImageBase\s*//p' <<<"$header")
    address=$(sed -n 's/^Entry a \([0-9a-f]*\) .*/\1/p' <<<"$header")
    section=$(printf '%016x' $((0x$base + 0x$address)))
    offset=$(x86_64-w64-mingw32-objdump -h "$file" | awk -v at="$section" '$4 == at { print $6 }')
    [[ -n $offset ]] || fail "$1.exe has no load configuration"
    # DependentLoadFlags: LOAD_LIBRARY_SEARCH_SYSTEM32
    word=$(od -An -tx2 -j $((0x$offset + 78)) -N 2 "$file")
    [[ $word == ' 0800' ]] || fail "$1.exe may load DLLs from its own folder: DependentLoadFlags are$word"
    grep -qaF 'stack smashing detected' "$file" || fail "$1.exe is built without a stack protector"
}

# --- bytes -----------------------------------------------------------------------------------------------------------

bytes_key() { programs_digest "${programs[@]}"; }
bytes_stamp() { echo "$source_folder/build/windows/.bytes"; }
bytes_says() { echo "builds the programs again in other folders, for the same bytes; about 4 minutes on two cores"; }
bytes_make() {
    in_root --caller inside_check_bytes "$source_folder" "$cache"
    write_stamp "$(bytes_stamp)" "$1"
}

# programs_digest NAME…: of the programs as they are
programs_digest() {
    local program
    for program; do
        sha256sum <"$source_folder/build/windows/bin/$program.exe" 2>/dev/null || echo missing
    done | digest
}

# inside_check_bytes PATH…: the paths are those of this computer that no program may name.
inside_check_bytes() {
    local again=$inside_making/built-again program path
    rm -rf "$again"
    mkdir -p "$again/sources-elsewhere"
    tar -C "$inside_source" --exclude=./build --exclude=./.git -cf - . | tar -C "$again/sources-elsewhere" -xf -
    export CCACHE_DISABLE=1
    configure windows "$again/sources-elsewhere" "$again/out" -DKESTRUNE_TESTS=OFF
    cmake --build "$again/out" --parallel "$jobs" --target "${programs[@]}" >"$inside_making/again.log" 2>&1 ||
        { tail -n 30 "$inside_making/again.log" >&2; fail "could not be built again"; }
    for program in "${programs[@]}"; do
        cmp "$inside_build/bin/$program.exe" "$again/out/bin/$program.exe" ||
            fail "$program.exe isn't the same when it is built again"
        for path in "$inside_source" "$inside_making" "$@"; do
            ! grep -qaF "$path/" "$inside_build/bin/$program.exe" || fail "$program.exe names the path $path"
        done
    done
    rm -rf "$again"
}

# --- clang -----------------------------------------------------------------------------------------------------------

# ninja itself knows what is out of date.
clang_key() { echo always; }
clang_stamp() { :; }
clang_says() { echo "all sources for Windows by clang, with all of its warnings; some 15 minutes on two cores from nothing"; }
clang_make() {
    in_root inside_clang_packages
    in_root --caller inside_build_by_clang
}

# Nothing else needs clang, so it isn't among the root's packages.
inside_clang_packages() {
    ! command -v clang++ >/dev/null || return 0
    say "installs clang in the root"
    apt-get update -qq
    apt-get install -qq -y --no-install-recommends clang >"$inside_making/packages.log" 2>&1 ||
        { tail -n 20 "$inside_making/packages.log" >&2; fail "apt-get failed"; }
    apt-get clean
}

inside_build_by_clang() {
    local folder=$inside_build/clang
    export CCACHE_DIR=$inside_making/ccache CCACHE_MAXSIZE=2G
    take_toolchain windows-clang "$folder"
    # One run tells of all warnings.
    cmake --build "$folder" --parallel "$jobs" -- -k 0
}
