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
    # Windows' headers define macros of the names min and max otherwise; one answer for all, since some headers of the
    # compiler's ask for it, and what is precompiled holds only where the answer is the same.
    $<$<BOOL:${WIN32}>:NOMINMAX>
)

option(KESTRUNE_CLANG_WARNINGS "Have clang warn of all that it can but for a list; its version must be one that was asked" OFF)
if(MSVC)
    target_compile_options(kestrune_options INTERFACE /W4 /WX /utf-8 /permissive-)
    # It warns of the standard library's getenv() and the like, and knows others that nobody else has.
    target_compile_definitions(kestrune_options INTERFACE _CRT_SECURE_NO_WARNINGS)
elseif(KESTRUNE_CLANG_WARNINGS)
    include(cmake/clangwarnings.cmake)
    target_compile_options(kestrune_options INTERFACE ${kestrune_clang_warnings} -Werror)
else()
    target_compile_options(kestrune_options INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
        # The macros of Qt Test shorten numbers since Qt 6.8.
        $<$<NOT:$<BOOL:$<TARGET_PROPERTY:KESTRUNE_TEST>>>:-Wconversion>
        # A test spends its time in what it tests, and compiles in three quarters of the time as it stands there.
        $<$<BOOL:$<TARGET_PROPERTY:KESTRUNE_TEST>>:-O0>)
endif()

if(KESTRUNE_SANITIZERS)
    target_compile_options(kestrune_options INTERFACE
        -fsanitize=${KESTRUNE_SANITIZERS} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(kestrune_options INTERFACE -fsanitize=${KESTRUNE_SANITIZERS})
    if(KESTRUNE_SANITIZERS STREQUAL "thread" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # It takes the look at what is empty in an optional for a use of it.
        target_compile_options(kestrune_options INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()
if(KESTRUNE_FUZZERS)
    target_compile_options(kestrune_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(KESTRUNE_COVERAGE)
    target_compile_options(kestrune_options INTERFACE --coverage)
    target_link_options(kestrune_options INTERFACE --coverage)
endif()

# kestrune_precompile(target [WIDGETS] [TESTS] [OWN])
# Lets a library or program read the headers that most of its files include in one go, which takes half the time of
# compiling off. The result has 150 MB, so what has no widgets shares one. Qt Test reads otherwise where Qt Gui or Qt
# Network is linked: such programs make their OWN. Files include what they use all the same.
option(KESTRUNE_PRECOMPILE "Precompile the headers that most files include" ON)
set(kestrune_headers <QCoreApplication> <QDateTime> <QDir> <QFile> <QHash> <QJsonObject> <QList> <QMap> <QProcess> <QSet>
    <QString> <QStringList> <QTextStream> <QThread> <QVariant>
    <algorithm> <array> <functional> <memory> <optional> <span> <variant> <vector>)
set(kestrune_widget_headers <QApplication> <QCheckBox> <QComboBox> <QHeaderView> <QLabel> <QMainWindow> <QMenu>
    <QMessageBox> <QPushButton> <QScrollArea> <QTableWidget> <QTextBrowser>)
set(kestrune_test_headers <QSignalSpy> <QTemporaryDir> <QTest>)
function(kestrune_precompile target)
    cmake_parse_arguments(ARG "WIDGETS;TESTS;OWN" "" "" ${ARGN})
    if(NOT KESTRUNE_PRECOMPILE)
        return()
    endif()
    set(headers ${kestrune_headers})
    if(ARG_WIDGETS)
        list(APPEND headers ${kestrune_widget_headers})
    endif()
    if(ARG_TESTS)
        list(APPEND headers ${kestrune_test_headers})
    endif()
    if(ARG_WIDGETS OR ARG_OWN)
        target_precompile_headers(${target} PRIVATE ${headers})
        return()
    endif()
    set(shared kestrune_precompiled)
    if(ARG_TESTS)
        set(shared kestrune_precompiled_tests)
    endif()
    if(NOT TARGET ${shared})
        file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/${shared}.cpp CONTENT "")
        add_library(${shared} OBJECT ${CMAKE_BINARY_DIR}/${shared}.cpp)
        target_link_libraries(${shared} PRIVATE kestrune_options Qt6::$<IF:$<BOOL:${ARG_TESTS}>,Test,Core>)
        set_target_properties(${shared} PROPERTIES AUTOMOC OFF AUTOUIC OFF KESTRUNE_TEST ${ARG_TESTS})
        target_precompile_headers(${shared} PRIVATE ${headers})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${shared})
endfunction()
