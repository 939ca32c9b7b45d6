# SPDX-License-Identifier: GPL-3.0-or-later
# The languages' files, made from resources/Translations.
#
# A source there has one context, "texts", that stands for all of ours: the code compares texts across contexts, so that
# the same English text must be the same in each. `cmake -P` on this file writes the source with all contexts.

set(contexts KestruneClass Kestrune WorkThread)

if(CMAKE_SCRIPT_MODE_FILE)
    file(READ ${FROM} source)
    string(FIND "${source}" "<context>" begin)
    string(FIND "${source}" "</TS>" end)
    math(EXPR length "${end} - ${begin}")
    string(SUBSTRING "${source}" 0 ${begin} head)
    string(SUBSTRING "${source}" ${begin} ${length} texts)
    set(result "${head}")
    foreach(context IN LISTS contexts)
        string(REPLACE "<name>texts</name>" "<name>${context}</name>" named "${texts}")
        string(APPEND result "${named}")
    endforeach()
    file(WRITE ${TO} "${result}</TS>\n")
    return()
endif()

find_program(KESTRUNE_LRELEASE NAMES lrelease-qt6 lrelease HINTS /usr/lib/qt6/bin ${QT6_INSTALL_PREFIX}/bin REQUIRED)

set(translations)
# kestrune_translation(name result...): resources/Translations/<name>.ts becomes lang_<result>.qm
function(kestrune_translation name)
    set(source ${CMAKE_SOURCE_DIR}/resources/Translations/${name}.ts)
    set(spread ${CMAKE_BINARY_DIR}/Translations/${name}.ts)
    set(files)
    set(releases)
    foreach(result IN LISTS ARGN)
        set(file ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Translations/lang_${result}.qm)
        list(APPEND files ${file})
        list(APPEND releases COMMAND ${KESTRUNE_LRELEASE} -silent -nounfinished ${spread} -qm ${file})
    endforeach()
    add_custom_command(OUTPUT ${files}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_BINARY_DIR}/Translations
            ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Translations
        COMMAND ${CMAKE_COMMAND} -DFROM=${source} -DTO=${spread} -P ${CMAKE_SOURCE_DIR}/cmake/translations.cmake
        ${releases}
        DEPENDS ${source} ${CMAKE_SOURCE_DIR}/cmake/translations.cmake
        VERBATIM)
    list(APPEND translations ${files})
    set(translations ${translations} PARENT_SCOPE)
endfunction()

# Qt looks for a language with its country first, and then without: a name without one is for every country.
kestrune_translation(de de)
kestrune_translation(en en_US) # is empty; without it nothing would lead back to English
kestrune_translation(es es)
kestrune_translation(fr fr_FR fr) # the Options page asks for the first by its name
kestrune_translation(it it)
kestrune_translation(ja ja)
kestrune_translation(nl nl)
kestrune_translation(pl pl)
kestrune_translation(pt_BR pt)
kestrune_translation(zh_CN zh_CN)
add_custom_target(translations ALL DEPENDS ${translations})
