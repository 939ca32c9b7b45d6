# SPDX-License-Identifier: GPL-3.0-or-later
# What is packed for Windows: the component "kestrune" is the program, "rehearse" what makes and opens rehearsal PCs.

set(texts ${CMAKE_BINARY_DIR}/texts)
# Texts for people on Windows, with its line ends
foreach(text IN ITEMS LICENSE packaging/windows/README.txt packaging/windows/README-rehearse.txt)
    cmake_path(GET text STEM name)
    configure_file(${CMAKE_SOURCE_DIR}/${text} ${texts}/${name}.txt NEWLINE_STYLE DOS @ONLY)
endforeach()

install(TARGETS kestrune RUNTIME DESTINATION . COMPONENT kestrune)
install(FILES ${texts}/LICENSE.txt ${texts}/README.txt DESTINATION . COMPONENT kestrune)
install(TARGETS kestrune-rehearse kestrune-rehearsal kestrune-stocktool RUNTIME DESTINATION . COMPONENT rehearse)
install(FILES ${texts}/LICENSE.txt DESTINATION . COMPONENT rehearse)
install(FILES ${texts}/README-rehearse.txt DESTINATION . RENAME README.txt COMPONENT rehearse)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/machines DESTINATION . COMPONENT rehearse)
foreach(component IN ITEMS kestrune rehearse)
    install(DIRECTORY ${CMAKE_SOURCE_DIR}/resources/img DESTINATION . COMPONENT ${component}
        FILES_MATCHING PATTERN "*.png" PATTERN source EXCLUDE)
    install(FILES ${translations} DESTINATION Translations COMPONENT ${component})
endforeach()
