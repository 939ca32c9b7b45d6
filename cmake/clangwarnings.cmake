# SPDX-License-Identifier: GPL-3.0-or-later
# Every warning that clang has, but for these. Each is off for the reason that stands above it; what isn't named here is
# an error. Clang 14 and 19 have been asked.

set(kestrune_clang_warnings -Weverything
    # The list is for more than one clang, and an older one doesn't know all of it.
    -Wno-unknown-warning-option

    # The language is C++20 and nothing older.
    -Wno-c++98-compat
    -Wno-c++98-compat-pedantic
    -Wno-c++20-compat

    # How many bytes a structure has between its members is nobody's concern here.
    -Wno-padded
    # Tables of texts are QString and QStringList: they are made before main() and go after it. None asks for another file's.
    -Wno-global-constructors
    -Wno-exit-time-destructors
    # An interface has no source of its own: its table stands in several objects, and the linker keeps one.
    -Wno-weak-vtables
    # std::lock_guard and its like don't say that their template's arguments may be left out, which they may.
    -Wno-ctad-maybe-unsupported
    # A default stands for all values that a switch doesn't name.
    -Wno-switch-enum
    # A switch that names all values has no default, so that -Wswitch finds it when there is one more.
    -Wno-switch-default
    # Paths in comments have backslashes, which are no commands of a tool that makes pages of comments.
    -Wno-documentation-unknown-command
    # Some functions are there for a macro of Qt's alone: tr() of Q_OBJECT.
    -Wno-unused-member-function
    # What uic writes, and the C library's own names for what gives memory.
    -Wno-reserved-identifier
    # Windows and SQLite hand out pointers and lengths.
    -Wno-unsafe-buffer-usage
    # The C library's macros are named like what they stand for.
    -Wno-disabled-macro-expansion
)
