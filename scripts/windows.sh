#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Builds the Windows program on Linux and tries it under Wine, all inside a Debian root of its own, so that the computer
# it runs on needs nothing but apt. A stage whose result is there already is skipped; an interrupted stage starts again.
#
# usage: ./dev windows            every stage, in order
#        ./dev windows STAGE…     these stages only
#        ./dev windows list       what the stages are and which results are there
#        ./dev windows shell      a shell in the Debian root
#
# Settings, all optional, taken from the environment:
#   KESTRUNE_WINDOWS_CACHE   where the root and the libraries are kept; below the user's cache folder without it
#   KESTRUNE_DEBIAN_MIRROR   a Debian mirror; without it the one that this computer's apt uses
#   KESTRUNE_QT_ARCHIVE      the archive of a finished Qt whose sum libraries.sh has, in place of the half hour's build
#   KESTRUNE_WEB_HOST        the host of the links, the update check and the manifests; a placeholder without it
#   KESTRUNE_JOBS            how many compilers run at once; all cores without it

# shellcheck disable=SC2317  # stages and the functions that run inside the root are called by their names
set -euo pipefail

# ---------------------------------------------------------------------------------------------------------------------
# Where things lie
# ---------------------------------------------------------------------------------------------------------------------

# Inside the root. The result's bytes depend on these, never on where the cache or the sources lie.
readonly inside=/kestrune
readonly inside_source=$inside/source
readonly inside_making=$inside/making
readonly inside_qt=/opt/qt-mingw
readonly inside_sqlite=/opt/sqlite-mingw inside_minizip=/opt/minizip-mingw
readonly inside_build=$inside_source/build/windows

# ---------------------------------------------------------------------------------------------------------------------
# Saying things
# ---------------------------------------------------------------------------------------------------------------------

say() { printf '%s\n' "windows: $*"; }
fail() { printf '%s\n' "windows: $*" >&2; exit 1; }

# took SECONDS: a length of time as people say it
took() {
    if (($1 < 60)); then printf '%d s' "$1"; else printf '%d min %02d s' $(($1 / 60)) $(($1 % 60)); fi
}

# digest: a short name of what comes in
digest() { sha256sum | cut -c1-16; }

# ---------------------------------------------------------------------------------------------------------------------
# The way into the root
# ---------------------------------------------------------------------------------------------------------------------

# Mounts and processes live in namespaces of their own: when the command ends, or this script dies in whatever way, the
# kernel takes both away, and nothing stays mounted or running.
readonly namespaces=(setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child)

check_namespaces() {
    "${namespaces[@]}" mount -t tmpfs none /mnt 2>/dev/null ||
        fail "this computer doesn't let root mount: a container must be started with that right (--privileged)"
}

# in_root [--caller] FUNCTION [ARGUMENT…]: calls a function of this script inside the root, as root, or as the user who
# called this script. The sources are read-only there.
in_root() {
    local user=0:0
    if [[ $1 == --caller ]]; then user=$caller; shift; fi
    make_folders
    local environment=(
        env -i HOME="$inside_making/home" USER=kestrune LANG=C.UTF-8 TERM="${TERM:-dumb}"
        PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin
        DEBIAN_FRONTEND=noninteractive KESTRUNE_JOBS="$jobs"
        ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"}
        ${SOURCE_DATE_EPOCH:+SOURCE_DATE_EPOCH="$SOURCE_DATE_EPOCH"}
        ${KESTRUNE_WEB_HOST:+KESTRUNE_WEB_HOST="$KESTRUNE_WEB_HOST"}
    )
    local command=(bash "$inside_source/scripts/windows.sh" --inside "$@")
    # 9 is the lock: a process that outlives its stage must not keep it.
    "${namespaces[@]}" bash "$source_folder/scripts/windows.sh" --mount "$root" "$cache" "$source_folder" \
        chroot --userspec="$user" "$root" "${environment[@]}" "${command[@]}" 9>&-
}

# bound_folders CACHE SOURCES: the folders that are seen inside the root, one a line, MODE:OUTSIDE:INSIDE
bound_folders() {
    printf '%s\n' \
        "ro:$2:$inside_source" \
        "rw:$2/build/windows:$inside_build" \
        "rw:$1/making:$inside_making" \
        "ro:$1/qt-mingw:$inside_qt" \
        "ro:$1/sqlite-mingw:$inside_sqlite" \
        "ro:$1/minizip-mingw:$inside_minizip"
}

make_folders() {
    local folder
    for folder in "$source_folder"/build{,/windows} "$cache"/{making,making/home,qt-mingw,sqlite-mingw,minizip-mingw}; do
        [[ -d $folder ]] || install -d -o "${caller%:*}" -g "${caller#*:}" "$folder"
    done
    mkdir -p "$root"{"$inside_source","$inside_making","$inside_qt","$inside_sqlite","$inside_minizip"}
}

# mount_and_run ROOT CACHE SOURCES COMMAND…: runs as the first process of fresh namespaces
mount_and_run() {
    local root=$1 mode outside target
    mount -t proc proc /proc
    mount -t proc proc "$root/proc"
    mount --rbind /dev "$root/dev"
    mount -t tmpfs -o mode=1777 tmpfs "$root/tmp"
    if [[ -e /etc/resolv.conf ]]; then
        touch "$root/etc/resolv.conf"
        mount --bind "$(readlink -f /etc/resolv.conf)" "$root/etc/resolv.conf"
    fi
    while IFS=: read -r mode outside target; do
        mount --bind "$outside" "$root$target"
        [[ $mode == rw ]] || mount -o remount,bind,ro "$root$target"
    done < <(bound_folders "$2" "$3")
    shift 3
    # The first process gets no signal that it doesn't ask for; when it ends, the kernel ends all others.
    trap 'exit 130' INT TERM HUP
    "$@" <&0 &
    wait $!
}

# ---------------------------------------------------------------------------------------------------------------------
# Stages: NAME_key prints a line that changes when the result must be made anew, NAME_stamp names the file that keeps the
# line of the result that is there, NAME_make makes it, NAME_says tells what that is and how long it takes.
# ---------------------------------------------------------------------------------------------------------------------

scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=scripts/windows/root.sh
source "$scripts/windows/root.sh"
# shellcheck source=scripts/windows/libraries.sh
source "$scripts/windows/libraries.sh"
# shellcheck source=scripts/windows/program.sh
source "$scripts/windows/program.sh"
# shellcheck source=scripts/windows/desk.sh
source "$scripts/windows/desk.sh"
# shellcheck source=scripts/windows/trial.sh
source "$scripts/windows/trial.sh"
# shellcheck source=scripts/windows/rehearse.sh
source "$scripts/windows/rehearse.sh"
# shellcheck source=scripts/windows/pack.sh
source "$scripts/windows/pack.sh"

readonly stages=(root packages qt sqlite minizip build bytes trial rehearse pack install)
# Those that are run only where they are named
readonly further_stages=(clang)
stage_times=()

run_stage() {
    local stage=$1 key stamp begin=$SECONDS
    key=$("${stage}_key")
    stamp=$("${stage}_stamp")
    if [[ -n $stamp && -e $stamp && $(<"$stamp") == "$key" ]]; then
        say "$stage: there already"
        stage_times+=("$stage" "there already")
        return
    fi
    say "$stage: $("${stage}_says")"
    "${stage}_make" "$key"
    stage_times+=("$stage" "$(took $((SECONDS - begin)))")
    say "$stage: done in ${stage_times[-1]}"
}

list_stages() {
    local stage stamp state
    for stage in "${stages[@]}" "${further_stages[@]}"; do
        stamp=$("${stage}_stamp")
        state=missing
        [[ -n $stamp ]] || state='run each time'
        [[ -z $stamp || ! -e $stamp ]] || state='another version'
        [[ -z $stamp || ! -e $stamp || $(<"$stamp") != "$("${stage}_key")" ]] || state=there
        printf '%-10s %-16s %s\n' "$stage" "$state" "$("${stage}_says")"
    done
}

# write_stamp FILE TEXT
write_stamp() {
    local temporary=$cache/stamp.$$
    printf '%s\n' "$2" >"$temporary"
    chown "$caller" "$temporary"
    mv "$temporary" "$1"
}

# ---------------------------------------------------------------------------------------------------------------------

# A Debian root can be made and entered by root only; what is compiled and tried in it runs as the caller again.
become_root() {
    command -v sudo >/dev/null || fail "needs to be root, or sudo: a Debian root can't be made otherwise"
    exec sudo env KESTRUNE_CALLER="$caller" KESTRUNE_WINDOWS_CACHE="$cache" KESTRUNE_JOBS="$jobs" \
        ${KESTRUNE_DEBIAN_MIRROR:+KESTRUNE_DEBIAN_MIRROR="$KESTRUNE_DEBIAN_MIRROR"} \
        ${KESTRUNE_QT_ARCHIVE:+KESTRUNE_QT_ARCHIVE="$(realpath "$KESTRUNE_QT_ARCHIVE")"} \
        ${http_proxy:+http_proxy="$http_proxy"} ${https_proxy:+https_proxy="$https_proxy"} \
        ${SOURCE_DATE_EPOCH:+SOURCE_DATE_EPOCH="$SOURCE_DATE_EPOCH"} \
        ${KESTRUNE_WEB_HOST:+KESTRUNE_WEB_HOST="$KESTRUNE_WEB_HOST"} \
        bash "$source_folder/scripts/windows.sh" "$@"
}

# The time that packed files carry: that of the commit, whoever owns the sources
find_epoch() {
    local time
    [[ -z ${SOURCE_DATE_EPOCH:-} ]] || return 0
    time=$(git -c safe.directory="$source_folder" -C "$source_folder" log -1 --format=%ct 2>/dev/null) ||
        time=$(stat -c %Y "$source_folder/CMakeLists.txt")
    export SOURCE_DATE_EPOCH=$time
}

inside_shell() { cd "$inside_source" && exec bash -i; }

usage() { sed -n '/^# usage:/,/^$/{s/^# \{0,1\}//;p}' "${BASH_SOURCE[0]}"; }

main() {
    source_folder=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
    jobs=${KESTRUNE_JOBS:-$(nproc)}
    case ${1:-} in
        --inside) shift; "$@"; return ;;
        --mount) shift; mount_and_run "$@"; return ;;
        help | --help | -h) usage; return ;;
    esac

    cache=${KESTRUNE_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/kestrune/windows}
    root=$cache/$suite
    caller=${KESTRUNE_CALLER:-$(id -u):$(id -g)}
    mkdir -p "$cache"
    cache=$(cd "$cache" && pwd)
    if ((EUID != 0)) && [[ ${1:-} != list ]]; then become_root "$@"; fi
    case ${1:-} in
        list) find_epoch; list_stages; return ;;
        shell) check_namespaces; in_root --caller inside_shell; return ;;
    esac

    local stage wanted=("$@") begin=$SECONDS
    ((${#wanted[@]})) || wanted=("${stages[@]}")
    for stage in "${wanted[@]}"; do
        [[ " ${stages[*]} ${further_stages[*]} " == *" $stage "* ]] || { usage >&2; fail "no such stage: $stage"; }
    done
    find_epoch
    exec 9>"$cache/lock"
    check_namespaces
    flock --nonblock 9 || { say "another run is at work in $cache; waits for it"; flock 9; }
    for stage in "${wanted[@]}"; do run_stage "$stage"; done
    ((${#wanted[@]} == 1)) || printf 'windows:   %-10s %s\n' "${stage_times[@]}"
    say "all done in $(took $((SECONDS - begin)))"
}

# On one line, so that nothing is read any more from a file that may have changed meanwhile
main "$@"; exit
