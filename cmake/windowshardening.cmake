# SPDX-License-Identifier: GPL-3.0-or-later

# kestrune_harden(program)
# Lets a program's own DLLs come from the system's folder alone: before main() Windows would look for those that aren't
# loaded in every process anyway in the program's folder first, where others may have put some. Does nothing but for
# Windows.
function(kestrune_harden program)
    if(NOT WIN32)
        return()
    endif()
    if(MSVC)
        target_link_options(${program} PRIVATE /DEPENDENTLOADFLAG:0x800)
        return()
    endif()
    target_sources(${program} PRIVATE ${CMAKE_SOURCE_DIR}/resources/windows/loadconfig.cpp)
    target_link_options(${program} PRIVATE -Wl,--undefined=kestruneLoadConfiguration
        # What it is made of, for the list of it that is packed.
        -Wl,-Map=${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${program}.map)
    # This linker leaves the load configuration out of the header's list.
    find_program(KESTRUNE_PERL perl)
    if(KESTRUNE_PERL)
        set(script ${CMAKE_SOURCE_DIR}/scripts/windows/setloadconfig.pl)
        set_property(TARGET ${program} APPEND PROPERTY LINK_DEPENDS ${script})
        add_custom_command(TARGET ${program} POST_BUILD COMMAND ${KESTRUNE_PERL} ${script} $<TARGET_FILE:${program}>
            VERBATIM)
    else()
        message(WARNING "Without Perl ${program} may load DLLs from its own folder")
    endif()
endfunction()
