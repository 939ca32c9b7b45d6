# SPDX-License-Identifier: GPL-3.0-or-later
# Compiles for 64-bit Windows on Debian, with static libraries only, so that a program needs no DLL but the system's.
# The preset "windows" names this file; scripts/windows.sh prepares what it expects.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

option(KESTRUNE_MINGW_CLANG "Compile by clang, with the headers and libraries of GCC's" OFF)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTRUNE_MINGW_CLANG)
if(KESTRUNE_MINGW_CLANG)
    set(CMAKE_C_COMPILER clang)
    set(CMAKE_CXX_COMPILER clang++)
    set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
    set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
    # GCC links what threads need by itself, and its library keeps what is each thread's own by functions.
    set(threads_as_gcc " -pthread -femulated-tls")
else()
    set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
    set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
endif()
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(KESTRUNE_MINGW_LIBRARIES "/opt/qt-mingw;/opt/sqlite-mingw;/opt/minizip-mingw" CACHE STRING
    "Folders of Qt, SQLite and minizip for Windows")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KESTRUNE_MINGW_LIBRARIES)

# Libraries are Windows', programs are this computer's. Packages are both: Qt's libraries are found there, moc, uic and
# rcc here.
set(CMAKE_FIND_ROOT_PATH ${KESTRUNE_MINGW_LIBRARIES} /usr/x86_64-w64-mingw32)
set(CMAKE_PREFIX_PATH ${KESTRUNE_MINGW_LIBRARIES})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
set(QT_HOST_PATH /usr CACHE PATH "Where Qt's tools for this computer are")
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake CACHE PATH "Where their CMake packages are")

# The same sources give the same bytes: no paths of this computer and no times go into the result.
string(CONCAT same_bytes "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=./build "
    "-Werror=date-time")
# Functions with buffers notice when they are written over.
set(CMAKE_C_FLAGS_INIT "${same_bytes} -fstack-protector-strong${threads_as_gcc}")
set(CMAKE_CXX_FLAGS_INIT "${same_bytes} -fstack-protector-strong${threads_as_gcc}")
# Windows may put the program anywhere in memory, and runs nothing that isn't code.
string(CONCAT linking "-static -fstack-protector-strong -Wl,--no-insert-timestamp "
    "-Wl,--dynamicbase,--high-entropy-va,--nxcompat")
if(KESTRUNE_MINGW_CLANG)
    # What is there once of a template, GCC's libraries keep in sections of other kinds and sizes.
    string(APPEND linking " -Wl,--allow-multiple-definition,--no-warnings")
endif()
set(CMAKE_EXE_LINKER_FLAGS_INIT "${linking}")
# The linker leaves the symbols out: strip would do it too, but writes the time of day into the file.
set(CMAKE_EXE_LINKER_FLAGS_MINSIZEREL_INIT "-s")

# ctest starts the tests with it.
find_program(KESTRUNE_WINE wine)
if(KESTRUNE_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${KESTRUNE_WINE})
endif()
