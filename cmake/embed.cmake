# SPDX-License-Identifier: GPL-3.0-or-later
# Text files that a library carries: styles and scripts of web pages.
#
# `cmake -P` on this file writes the header for one.

if(CMAKE_SCRIPT_MODE_FILE)
    file(READ ${FROM} text)
    string(FIND "${text}" "\n" first_end) # the licence stays out of the pages
    string(SUBSTRING "${text}" ${first_end} -1 text)
    file(WRITE ${TO} "#include <QLatin1StringView>\n\n"
        "inline constexpr QLatin1StringView ${NAME}(R\"file(${text})file\");\n")
    return()
endif()

# kestrune_embed(target file...): a source of the target includes "page.css.h" and has the file page.css as pageCss, from
# the end of its first line.
function(kestrune_embed target)
    foreach(file IN LISTS ARGN)
        get_filename_component(base ${file} NAME_WE)
        get_filename_component(ending ${file} LAST_EXT)
        string(SUBSTRING ${ending} 1 1 initial)
        string(SUBSTRING ${ending} 2 -1 rest)
        string(TOUPPER ${initial} initial)
        set(source ${CMAKE_CURRENT_SOURCE_DIR}/${file})
        set(header ${CMAKE_CURRENT_BINARY_DIR}/embedded/${file}.h)
        add_custom_command(OUTPUT ${header}
            COMMAND ${CMAKE_COMMAND} -D FROM=${source} -D TO=${header} -D NAME=${base}${initial}${rest}
                -P ${CMAKE_SOURCE_DIR}/cmake/embed.cmake
            DEPENDS ${source} ${CMAKE_SOURCE_DIR}/cmake/embed.cmake
            VERBATIM)
        target_sources(${target} PRIVATE ${header})
    endforeach()
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/embedded)
endfunction()
