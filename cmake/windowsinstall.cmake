# SPDX-License-Identifier: GPL-3.0-or-later
# What is packed for Windows: the programs, and in a folder that needs nothing else what makes and opens rehearsal PCs.

set(texts ${CMAKE_BINARY_DIR}/texts)
# Texts for people on Windows, with its line ends
foreach(text IN ITEMS LICENSE packaging/windows/README.txt packaging/windows/README-rehearse.txt)
    cmake_path(GET text STEM name)
    configure_file(${CMAKE_SOURCE_DIR}/${text} ${texts}/${name}.txt NEWLINE_STYLE DOS @ONLY)
endforeach()

install(TARGETS kestrune kestrune-cli RUNTIME DESTINATION . COMPONENT kestrune)
install(FILES ${texts}/README.txt DESTINATION . COMPONENT kestrune)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/profiles DESTINATION . COMPONENT kestrune)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/schemas DESTINATION share COMPONENT kestrune)
configure_file(${CMAKE_SOURCE_DIR}/resources/dsc/kestrune.dsc.resource.json.in ${texts}/kestrune.dsc.resource.json @ONLY)
install(FILES ${texts}/kestrune.dsc.resource.json DESTINATION . COMPONENT kestrune)
install(TARGETS kestrune-rehearse kestrune-rehearsal kestrune-stocktool RUNTIME DESTINATION rehearse COMPONENT kestrune)
install(FILES ${texts}/README-rehearse.txt DESTINATION rehearse RENAME README.txt COMPONENT kestrune)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/machines DESTINATION rehearse COMPONENT kestrune)
foreach(folder IN ITEMS . rehearse)
    install(FILES ${texts}/LICENSE.txt DESTINATION ${folder} COMPONENT kestrune)
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/img DESTINATION ${folder} COMPONENT kestrune
        FILES_MATCHING PATTERN "*.png" PATTERN source EXCLUDE)
    install(FILES ${translations} DESTINATION ${folder}/Translations COMPONENT kestrune)
endforeach()
