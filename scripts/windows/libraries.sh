# SPDX-License-Identifier: GPL-3.0-or-later
# Functions are called by their names, variables are those of the sourcing script, which has set -e:
# shellcheck shell=bash disable=SC2317,SC2154,SC2034,SC2164
# The stages "qt", "sqlite" and "minizip": the libraries for Windows. Sourced by scripts/windows.sh.

readonly qt_version=6.8.2
# SHA-256 of the one archive of a finished Qt that is taken in place of the build: what is in it, people run.
readonly qt_archive_sum=b398ba5d4390d7245dfe76c9c711da6e09dd8a0ef3b0606b8d0b25997d8ce25e

# Only what Kestrune uses, and everything from Qt's own sources, so that the program needs no library beside it.
readonly qt_options=(
    -DCMAKE_BUILD_TYPE=MinSizeRel
    -DCMAKE_SYSTEM_NAME=Windows
    -DCMAKE_SYSTEM_PROCESSOR=x86_64
    -DCMAKE_C_COMPILER=x86_64-w64-mingw32-gcc-posix
    -DCMAKE_CXX_COMPILER=x86_64-w64-mingw32-g++-posix
    -DCMAKE_RC_COMPILER=x86_64-w64-mingw32-windres
    -DCMAKE_FIND_ROOT_PATH_MODE_PROGRAM=NEVER
    -DCMAKE_FIND_ROOT_PATH=/usr/x86_64-w64-mingw32
    -DCMAKE_FIND_ROOT_PATH_MODE_LIBRARY=ONLY
    -DCMAKE_FIND_ROOT_PATH_MODE_INCLUDE=ONLY
    -DCMAKE_FIND_ROOT_PATH_MODE_PACKAGE=ONLY
    -DQT_HOST_PATH=/usr
    -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake
    -DBUILD_SHARED_LIBS=OFF
    -DQT_UNITY_BUILD=ON
    -DQT_GENERATE_SBOM=OFF
    -DQT_BUILD_TOOLS_BY_DEFAULT=OFF
    -DQT_BUILD_TESTS=OFF
    -DQT_BUILD_EXAMPLES=OFF
    -DINPUT_opengl=no
    -DFEATURE_static_runtime=ON
)
readonly qt_features_off=(
    sql dbus xml concurrent printsupport opengl vulkan androiddeployqt qmake ssl schannel system_zlib jpeg
    sessionmanager tabletevent intelcet stack_clash_protection stack_protector
)

readonly sqlite_options=(
    -DSQLITE_THREADSAFE=1 -DSQLITE_DQS=0 -DSQLITE_DEFAULT_MEMSTATUS=0 -DSQLITE_OMIT_LOAD_EXTENSION
    -DSQLITE_OMIT_DEPRECATED -DSQLITE_OMIT_SHARED_CACHE
)

# --- qt --------------------------------------------------------------------------------------------------------------

# A Qt that was unpacked once stays, also when the archive is no longer named.
qt_key() {
    local unpacked="archive ${qt_archive_sum:0:16}"
    if [[ -n ${KESTRUNE_QT_ARCHIVE:-} || (-e $(qt_stamp) && $(<"$(qt_stamp)") == "$unpacked") ]]; then
        echo "$unpacked"
    else
        echo "$qt_version ${qt_options[*]} ${qt_features_off[*]}" | digest
    fi
}
qt_stamp() { echo "$cache/qt-mingw/.stamp"; }
qt_says() {
    if [[ -n ${KESTRUNE_QT_ARCHIVE:-} ]]; then
        echo "Qt for Windows, unpacked from $KESTRUNE_QT_ARCHIVE; a few seconds"
    else
        echo "Qt $qt_version for Windows, from Debian's sources; about 25 minutes on two cores"
    fi
}

qt_make() {
    if [[ -n ${KESTRUNE_QT_ARCHIVE:-} ]]; then
        [[ $(sha256sum <"$KESTRUNE_QT_ARCHIVE") == "$qt_archive_sum "* ]] ||
            fail "$KESTRUNE_QT_ARCHIVE isn't the archive that scripts/windows/libraries.sh knows by its SHA-256"
        rm -rf "$cache/qt-mingw.new"
        mkdir -p "$cache/qt-mingw.new"
        [[ $KESTRUNE_QT_ARCHIVE != *.xz ]] || command -v xz >/dev/null || install_on_host xz-utils
        tar -xf "$KESTRUNE_QT_ARCHIVE" -C "$cache/qt-mingw.new" --strip-components=1
        [[ -e $cache/qt-mingw.new/lib/libQt6Core.a ]] || fail "no Qt for Windows in $KESTRUNE_QT_ARCHIVE"
        keep_result "$cache/qt-mingw.new" "$cache/qt-mingw" "$1"
    else
        in_root --caller inside_build_qt "$1"
        keep_result "$cache/making/qt-install$inside_qt" "$cache/qt-mingw" "$1"
        rm -rf "$cache/making/qt-install" "$cache/making/qt-build" "$cache/making/qt-source"
    fi
}

# keep_result NEW PLACE KEY: a finished folder takes its place
keep_result() {
    printf '%s\n' "$3" >"$1/.stamp"
    rm -rf "$2"
    mv "$1" "$2"
}

# inside_source_of PACKAGE FOLDER: a Debian source package with Debian's patches, unpacked. A mirror that is being brought
# up to date may list a version whose files it hasn't got; then the one before it is taken.
inside_source_of() {
    local version
    [[ -d $2 ]] && return
    say "fetches the sources of $1"
    while read -r version; do
        rm -rf "$2.new"
        mkdir -p "$2.new"
        if (cd "$2.new" && apt-get source -qq "$1=$version" >"$inside_making/source.log" 2>&1 </dev/null); then
            mv "$2.new"/*/ "$2"
            rm -rf "$2.new"
            return
        fi
        say "the mirror doesn't have them as of version $version"
    done < <(apt-cache showsrc --only-source "$1" | sed -n 's/^Version: //p' | sort --version-sort --reverse)
    tail -n 20 "$inside_making/source.log" >&2 || true
    fail "could not fetch the sources of $1"
}

# An interrupted build goes on where it stopped, as long as its settings are the same.
inside_build_qt() {
    local key=$1 build=$inside_making/qt-build feature features=()
    inside_source_of qt6-base "$inside_making/qt-source"
    grep -q "QT_REPO_MODULE_VERSION \"$qt_version\"" "$inside_making/qt-source/.cmake.conf" ||
        fail "Debian's sources are no longer those of Qt $qt_version"
    for feature in "${qt_features_off[@]}"; do features+=("-DFEATURE_$feature=OFF"); done
    [[ -e $build/key && $(<"$build/key") == "$key" ]] || rm -rf "$build"
    mkdir -p "$build"
    printf '%s\n' "$key" >"$build/key"
    cmake -G Ninja -S "$inside_making/qt-source" -B "$build" -DCMAKE_INSTALL_PREFIX="$inside_qt" \
        "${qt_options[@]}" "${features[@]}" >"$inside_making/qt-configure.log" 2>&1 ||
        { tail -n 30 "$inside_making/qt-configure.log" >&2; fail "Qt could not be configured"; }
    cmake --build "$build" --parallel "$jobs"
    rm -rf "$inside_making/qt-install"
    DESTDIR=$inside_making/qt-install cmake --install "$build" >/dev/null
}

# --- sqlite ----------------------------------------------------------------------------------------------------------

sqlite_key() { echo "${sqlite_options[*]} 1" | digest; }
sqlite_stamp() { echo "$cache/sqlite-mingw/.stamp"; }
sqlite_says() { echo "SQLite for Windows, from Debian's sources; about 1 minute"; }

sqlite_make() {
    in_root --caller inside_build_sqlite
    keep_result "$cache/making/sqlite-install" "$cache/sqlite-mingw" "$1"
    rm -rf "$cache/making/sqlite-source"
}

# The sources are made into the one big file that SQLite's authors advise to compile, by SQLite's own makefile.
inside_build_sqlite() {
    local source=$inside_making/sqlite-source result=$inside_making/sqlite-install
    inside_source_of sqlite3 "$source"
    (cd "$source" && ./configure && make sqlite3.c sqlite3.h) >"$inside_making/sqlite.log" 2>&1 </dev/null ||
        { tail -n 20 "$inside_making/sqlite.log" >&2; fail "SQLite's one file could not be made"; }
    rm -rf "$result"
    mkdir -p "$result/include" "$result/lib"
    cp "$source/sqlite3.h" "$result/include/"
    (
        cd "$source"
        x86_64-w64-mingw32-gcc-posix -O2 -ffile-prefix-map="$source"=. "${sqlite_options[@]}" -c sqlite3.c -o sqlite3.obj
        x86_64-w64-mingw32-ar rcsD "$result/lib/libsqlite3.a" sqlite3.obj
    )
}

# --- minizip ---------------------------------------------------------------------------------------------------------

minizip_key() { echo 1 | digest; }
minizip_stamp() { echo "$cache/minizip-mingw/.stamp"; }
minizip_says() { echo "minizip with zlib for Windows, from Debian's sources; some seconds"; }

minizip_make() {
    in_root --caller inside_build_minizip
    keep_result "$cache/making/minizip-install" "$cache/minizip-mingw" "$1"
    rm -rf "$cache/making/zlib-source"
}

inside_build_minizip() {
    local source=$inside_making/zlib-source result=$inside_making/minizip-install
    inside_source_of zlib "$source"
    rm -rf "$result"
    mkdir -p "$result/include/minizip" "$result/lib"
    cp "$source"/{zlib,zconf}.h "$result/include/"
    cp "$source"/contrib/minizip/{ioapi,unzip,zip}.h "$result/include/minizip/"
    (
        cd "$source"
        x86_64-w64-mingw32-gcc-posix -O2 -ffile-prefix-map="$source"=. -DUSE_FILE32API -DNOCRYPT -DNOUNCRYPT -I. -c \
            adler32.c crc32.c deflate.c inffast.c inflate.c inftrees.c trees.c zutil.c \
            contrib/minizip/{ioapi,unzip,zip}.c
        x86_64-w64-mingw32-ar rcsD "$result/lib/libz.a" {adler32,crc32,deflate,inffast,inflate,inftrees,trees,zutil}.o
        x86_64-w64-mingw32-ar rcsD "$result/lib/libminizip.a" {ioapi,unzip,zip}.o
    )
}
