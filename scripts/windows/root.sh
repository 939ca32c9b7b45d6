# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# The stages "root" and "packages": a Debian root with all that is needed. Sourced by scripts/windows.sh.

readonly suite=trixie
# By which Debian's archive is known, on this computer as in the root
readonly debian_keys=/usr/share/keyrings/debian-archive-keyring.gpg

readonly packages=(
    g++-mingw-w64-x86-64-posix cmake ninja-build ccache   # the cross-compiler and its helpers
    qt6-base-dev qt6-base-dev-tools qt6-l10n-tools        # moc, uic, rcc and lrelease of the same Qt
    dpkg-dev gcc libc6-dev make tcl                       # Debian's sources, and what SQLite makes its one file with
    wine wine64 xvfb xauth fonts-wine fonts-liberation    # where the result is tried
    nsis zip unzip                                        # packing
)

install_on_host() {
    say "installs $* on this computer"
    command -v apt-get >/dev/null || fail "$* is missing, and this computer has no apt-get: please install it"
    apt-get update -qq || true
    env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y --no-install-recommends "$@" >"$cache/log" 2>&1 ||
        { tail -n 20 "$cache/log" >&2; fail "could not install $*"; }
}

# --- root ------------------------------------------------------------------------------------------------------------

root_key() { echo "$suite minbase 1"; }
root_stamp() { echo "$root/etc/kestrune-root"; }
root_says() { echo "a Debian $suite root; about 1 minute"; }

# mirror: the address of the Debian archive that apt uses on this computer, whichever way its sources are written
mirror() {
    if [[ -n ${KESTRUNE_DEBIAN_MIRROR:-} ]]; then echo "$KESTRUNE_DEBIAN_MIRROR"; return; fi
    local found
    found=$(mirror_of_apt)
    if [[ -z $found ]]; then
        # Without package lists apt can't tell which of its sources is Debian's.
        apt-get update -qq >&2 || true
        found=$(mirror_of_apt)
    fi
    [[ -n $found ]] || fail "this computer's apt knows no Debian mirror: name one in KESTRUNE_DEBIAN_MIRROR"
    # "mirror+file:/a/list" stands for the addresses in that file.
    if [[ $found == mirror+file:* ]]; then
        found=$(awk '!/^#/ && NF { print $1; exit }' "/${found#mirror+file:}")
    fi
    echo "$found"
}

mirror_of_apt() {
    # shellcheck disable=SC2016  # the names are apt's
    apt-get indextargets --format '$(LABEL)|$(COMPONENT)|$(REPO_URI)' 'Created-By: Packages' 2>/dev/null |
        awk -F'|' '$1 == "Debian" && $2 == "main" && !n++ { print $3 }'
}

root_make() {
    local address new=$root.new
    command -v debootstrap >/dev/null || [[ -x /usr/sbin/debootstrap ]] || install_on_host debootstrap
    [[ -e $debian_keys ]] || install_on_host debian-archive-keyring
    command -v gpgv >/dev/null || install_on_host gpgv
    address=$(mirror)
    rm -rf --one-file-system "$new" "$root"
    say "from $address"
    PATH=$PATH:/usr/sbin:/sbin "${namespaces[@]}" \
        debootstrap --variant=minbase --include=ca-certificates --force-check-gpg --keyring="$debian_keys" \
        "$suite" "$new" "$address" >"$cache/log" 2>&1 ||
        { tail -n 20 "$cache/log" >&2; fail "debootstrap failed; its whole output is in $cache/log"; }
    cat >"$new/etc/apt/sources.list.d/kestrune.sources" <<END
Types: deb deb-src
URIs: $address
Suites: $suite
Components: main
Signed-By: $debian_keys
END
    rm -f "$new/etc/apt/sources.list"
    # A proxy, and whether an older state of the archive is accepted, as on this computer
    apt-config dump --no-empty | grep -E '^Acquire::(http|https|Check|Retries)' \
        >"$new/etc/apt/apt.conf.d/90kestrune" || true
    cat >"$new/etc/dpkg/dpkg.cfg.d/kestrune" <<END
force-unsafe-io
path-exclude=/usr/share/doc/*
path-exclude=/usr/share/man/*
path-exclude=/usr/share/locale/*
path-exclude=/usr/share/info/*
END
    printf '#!/bin/sh\nexit 101\n' >"$new/usr/sbin/policy-rc.d"
    chmod 755 "$new/usr/sbin/policy-rc.d"
    write_stamp "$new/etc/kestrune-root" "$1"
    mv "$new" "$root"
}

# --- packages --------------------------------------------------------------------------------------------------------

packages_key() { echo "$(root_key) ${packages[*]}" | digest; }
packages_stamp() { echo "$root/etc/kestrune-packages"; }
packages_says() { echo "compilers, Qt's tools, Wine and NSIS in it; about 2 minutes"; }

packages_make() {
    in_root inside_packages
    in_root --caller inside_check_tools
    write_stamp "$(packages_stamp)" "$1"
}

inside_packages() {
    dpkg --configure -a
    apt-get update -qq
    apt-get install -qq -y --no-install-recommends "${packages[@]}" >"$inside_making/packages.log" 2>&1 ||
        { tail -n 20 "$inside_making/packages.log" >&2; fail "apt-get failed"; }
    apt-get clean
}

# Every tool that a later stage starts is started once here, so that a broken root shows at once.
inside_check_tools() {
    local tool
    for tool in "x86_64-w64-mingw32-g++-posix --version" "x86_64-w64-mingw32-windres --version" "cmake --version" \
        "ninja --version" "ccache --version" "/usr/lib/qt6/libexec/moc --version" "/usr/lib/qt6/libexec/uic --version" \
        "/usr/lib/qt6/libexec/rcc --version" "/usr/lib/qt6/bin/lrelease -version" "dpkg-source --version" \
        "wine --version" "Xvfb -help" "makensis -VERSION" "zip -v"; do
        # shellcheck disable=SC2086  # a command with its argument
        $tool >/dev/null 2>"$inside_making/tool.log" </dev/null ||
            { cat "$inside_making/tool.log" >&2; fail "'$tool' doesn't start in the root"; }
    done
}
