# SPDX-License-Identifier: GPL-3.0-or-later
# What lies beside the executable: images, translations (made elsewhere) and the built-in rehearsal machines.

file(GLOB_RECURSE resource_files CONFIGURE_DEPENDS RELATIVE ${CMAKE_SOURCE_DIR}/resources
    ${CMAKE_SOURCE_DIR}/resources/img/*.png
    ${CMAKE_SOURCE_DIR}/resources/machines/*
)
set(copied_resources)
foreach(file IN LISTS resource_files)
    set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${file})
    add_custom_command(OUTPUT ${copy}
        COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/resources/${file} ${copy}
        DEPENDS ${CMAKE_SOURCE_DIR}/resources/${file}
        VERBATIM)
    list(APPEND copied_resources ${copy})
endforeach()
add_custom_target(resources ALL DEPENDS ${copied_resources})
add_dependencies(resources translations)
