# SPDX-License-Identifier: GPL-3.0-or-later
# What the project needs of Debian's packages, by purpose. Sourced by other scripts.

packages_for() {
    case $1 in
    build) echo "g++ cmake ninja-build ccache qt6-base-dev qt6-base-dev-tools qt6-l10n-tools libsqlite3-dev libminizip-dev zlib1g-dev" ;;
    window) echo "fonts-open-sans fonts-dejavu-core" ;;
    browser) echo "chromium chromium-driver" ;;
    reader) echo "xvfb matchbox-window-manager dbus-daemon at-spi2-core" ;;
    trace) echo "strace" ;;
    schemas) echo "python3 python3-jsonschema" ;;
    bench) echo "libbenchmark-dev" ;;
    coverage) echo "gcovr" ;;
    fuzz) echo "clang libclang-rt-dev" ;;
    clang) echo "clang" ;;
    format) echo "clang-format" ;;
    mutate) echo "python3" ;;
    tidy) echo "clang-tidy" ;;
    esac
}

reason_for() {
    case $1 in
    build) echo "to build the program" ;;
    window) echo "to draw its window" ;;
    browser) echo "to try its web pages" ;;
    reader) echo "to read its window as screen readers do" ;;
    trace) echo "to see which files its processes open" ;;
    schemas) echo "to hold its JSON against its schemas" ;;
    bench) echo "to measure its speed" ;;
    fuzz) echo "to try its readers with any input" ;;
    clang) echo "to compile it by another compiler" ;;
    coverage) echo "to measure what the tests reach" ;;
    format) echo "to format the sources" ;;
    mutate) echo "to try the tests by small faults" ;;
    tidy) echo "to check the sources" ;;
    esac
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Installs what is missing for the given purposes; does nothing where all is there.
install_packages() {
    local purpose package missing all=()
    for purpose in "$@"; do
        missing=()
        for package in $(packages_for "$purpose"); do
            is_installed "$package" || missing+=("$package")
        done
        [ ${#missing[@]} -eq 0 ] || echo "Installing $(reason_for "$purpose"): ${missing[*]}" >&2
        all+=("${missing[@]}")
    done
    [ ${#all[@]} -gt 0 ] || return 0
    local root=()
    [ "$(id -u)" = 0 ] || root=(sudo)
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${all[@]}" >&2
}
