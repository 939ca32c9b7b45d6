# SPDX-License-Identifier: GPL-3.0-or-later
# Text files that a library carries: styles and scripts of web pages, and tables.
#
# `cmake -P` on this file writes the header for one.

if(CMAKE_SCRIPT_MODE_FILE)
    file(READ ${FROM} text)
    if(text MATCHES "^[^\n]*SPDX") # the licence stays out of the pages; a table in JSON can't have it
        string(FIND "${text}" "\n" first_end)
        string(SUBSTRING "${text}" ${first_end} -1 text)
    endif()
    # Byte by byte, since one of the compilers takes no literal of more than 16,380 bytes.
    string(HEX "${text}" bytes)
    string(REGEX REPLACE "(................................)" "\\1\n" bytes "${bytes}")
    string(REGEX REPLACE "([0-9a-f][0-9a-f])" "'\\\\x\\1'," bytes "${bytes}")
    file(WRITE ${TO} "#include <QLatin1StringView>\n\n"
        "inline constexpr char ${NAME}Bytes[] = {${bytes}'\\0'};\n"
        "inline constexpr QLatin1StringView ${NAME}(${NAME}Bytes, sizeof ${NAME}Bytes - 1);\n")
    return()
endif()

# kestrune_embed(target file...): a source of the target includes "page.css.h" and has the file page.css as pageCss, from
# the end of a first line with the licence.
function(kestrune_embed target)
    foreach(file IN LISTS ARGN)
        get_filename_component(base ${file} NAME_WE)
        get_filename_component(ending ${file} LAST_EXT)
        string(SUBSTRING ${ending} 1 1 initial)
        string(SUBSTRING ${ending} 2 -1 rest)
        string(TOUPPER ${initial} initial)
        get_filename_component(source ${file} ABSOLUTE)
        get_filename_component(name ${file} NAME)
        set(header ${CMAKE_CURRENT_BINARY_DIR}/embedded/${name}.h)
        add_custom_command(OUTPUT ${header}
            COMMAND ${CMAKE_COMMAND} -D FROM=${source} -D TO=${header} -D NAME=${base}${initial}${rest}
                -P ${CMAKE_SOURCE_DIR}/cmake/embed.cmake
            DEPENDS ${source} ${CMAKE_SOURCE_DIR}/cmake/embed.cmake
            VERBATIM)
        target_sources(${target} PRIVATE ${header})
    endforeach()
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/embedded)
endfunction()
