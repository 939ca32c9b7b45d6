# SPDX-License-Identifier: GPL-3.0-or-later

# kestrune_windows_resources(target description)
# Gives a program its icon, its version and its manifest.
function(kestrune_windows_resources program description)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${program}-resources)
    set(manifest ${folder}/${program}.manifest)
    configure_file(${CMAKE_SOURCE_DIR}/resources/windows/program.manifest.in ${manifest} @ONLY)
    configure_file(${CMAKE_SOURCE_DIR}/resources/windows/program.rc.in ${folder}/${program}.rc @ONLY)
    target_sources(${program} PRIVATE ${folder}/${program}.rc)
    set_source_files_properties(${folder}/${program}.rc PROPERTIES
        OBJECT_DEPENDS "${manifest};${CMAKE_SOURCE_DIR}/resources/icon/kestrune.ico")
    if(MSVC)
        # The linker would add a manifest of its own.
        target_link_options(${program} PRIVATE /MANIFEST:NO)
    endif()
endfunction()
