# SPDX-License-Identifier: GPL-3.0-or-later
# minizip::minizip, the reader and writer of ZIP files that comes with zlib. Package managers that build by CMake bring a
# package of it along; Debian and the cross-build have its header and library alone.
find_package(unofficial-minizip QUIET CONFIG)
if(unofficial-minizip_FOUND)
    add_library(minizip::minizip ALIAS unofficial::minizip::minizip)
    return()
endif()
find_path(MINIZIP_INCLUDE_DIR minizip/unzip.h REQUIRED)
find_library(MINIZIP_LIBRARY minizip REQUIRED)
find_library(MINIZIP_ZLIB_LIBRARY NAMES z zs REQUIRED)
add_library(minizip::minizip INTERFACE IMPORTED)
target_include_directories(minizip::minizip SYSTEM INTERFACE ${MINIZIP_INCLUDE_DIR})
target_link_libraries(minizip::minizip INTERFACE ${MINIZIP_LIBRARY} ${MINIZIP_ZLIB_LIBRARY})
