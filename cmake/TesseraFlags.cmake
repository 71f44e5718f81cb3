# SPDX-FileCopyrightText: 2026 Tessera contributors
# SPDX-License-Identifier: MIT

# Every target of the project links this one and gets the same definitions and warnings.
add_library(tessera_flags INTERFACE)

target_compile_definitions(tessera_flags INTERFACE
    QT_NO_KEYWORDS # GLib has a member named "signals"
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_FOREACH
    QT_NO_JAVA_STYLE_ITERATORS
    QT_NO_LINKED_LIST
    QT_STRICT_ITERATORS
    QT_USE_QSTRINGBUILDER
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050F00)

target_compile_options(tessera_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wold-style-cast -Woverloaded-virtual -Wnon-virtual-dtor
    -Wcast-align -Wundef -Wextra-semi -Wzero-as-null-pointer-constant -Wformat=2 -Wconversion
    -Wsign-conversion -Wdouble-promotion
    $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override;-Wduplicated-cond;-Wlogical-op>
    $<$<BOOL:${TESSERA_WARNINGS_AS_ERRORS}>:-Werror>)

set(TESSERA_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")
# clang leaves the sanitizers' run time to the program, so that libraries cannot be closed.
if(NOT TESSERA_SANITIZE OR NOT CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    target_link_options(tessera_flags INTERFACE LINKER:--no-undefined)
endif()
if(TESSERA_SANITIZE)
    add_compile_options(-fsanitize=${TESSERA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${TESSERA_SANITIZE})
endif()
