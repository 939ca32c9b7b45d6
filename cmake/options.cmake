# SPDX-License-Identifier: GPL-3.0-or-later
# Warnings, definitions and sanitizers of all targets of this project.

add_library(kestrune_options INTERFACE)
target_include_directories(kestrune_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_definitions(kestrune_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
)

if(MSVC)
    target_compile_options(kestrune_options INTERFACE /W4 /WX /utf-8 /permissive-)
else()
    target_compile_options(kestrune_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
        # The macros of Qt Test shorten numbers since Qt 6.8.
        $<$<NOT:$<BOOL:$<TARGET_PROPERTY:KESTRUNE_TEST>>>:-Wconversion>)
endif()

if(KESTRUNE_SANITIZERS)
    target_compile_options(kestrune_options INTERFACE
        -fsanitize=${KESTRUNE_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(kestrune_options INTERFACE -fsanitize=${KESTRUNE_SANITIZERS})
endif()
if(KESTRUNE_COVERAGE)
    target_compile_options(kestrune_options INTERFACE --coverage)
    target_link_options(kestrune_options INTERFACE --coverage)
endif()

# kestrune_precompile(target [WIDGETS] [TESTS])
# Lets a library or program read the headers that most of its files include in one go, which takes half the time of
# compiling off. Files include what they use all the same.
option(KESTRUNE_PRECOMPILE "Precompile the headers that most files include" ON)
function(kestrune_precompile target)
    cmake_parse_arguments(ARG "WIDGETS;TESTS" "" "" ${ARGN})
    if(NOT KESTRUNE_PRECOMPILE)
        return()
    endif()
    set(headers <QCoreApplication> <QDateTime> <QDir> <QFile> <QHash> <QJsonObject> <QList> <QMap> <QProcess> <QSet>
        <QString> <QStringList> <QTextStream> <QThread> <QVariant>
        <algorithm> <array> <functional> <memory> <optional> <span> <variant> <vector>)
    if(ARG_WIDGETS)
        list(APPEND headers <QApplication> <QCheckBox> <QComboBox> <QHeaderView> <QLabel> <QMainWindow> <QMenu>
            <QMessageBox> <QPushButton> <QScrollArea> <QTableWidget> <QTextBrowser>)
    endif()
    if(ARG_TESTS)
        list(APPEND headers <QSignalSpy> <QTemporaryDir> <QTest>)
    endif()
    target_precompile_headers(${target} PRIVATE ${headers})
endfunction()
