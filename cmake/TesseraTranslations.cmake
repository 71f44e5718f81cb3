# SPDX-FileCopyrightText: 2026 Tessera contributors
# SPDX-License-Identifier: MIT

set(TESSERA_LANGUAGES en ja zh ko)

# The tools that belong to the Qt of this build.
get_target_property(TESSERA_RCC Qt5::rcc IMPORTED_LOCATION)
get_filename_component(tessera_qt_tools "${TESSERA_RCC}" DIRECTORY)
find_program(TESSERA_LRELEASE NAMES lrelease lrelease-qt5 HINTS "${tessera_qt_tools}")
if(NOT TESSERA_LRELEASE)
    message(FATAL_ERROR "There is no lrelease; scripts/bootstrap installs it.")
endif()

# tessera_add_translations(TARGET NAME FOLDER folder SETS ...): joins, for each language, the files
# <SET>_<language>.ts of the folder into the Qt resource ":/translation/NAME_<language>.qm"
# of TARGET. An unfinished text is left out, which the test of the translations notices.
# A static library's resources are registered by Q_INIT_RESOURCE(<NAME in lower case>translations).
function(tessera_add_translations target name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "FOLDER" "SETS")
    string(TOLOWER "${name}translations" resource)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/${resource}")
    file(MAKE_DIRECTORY "${folder}")
    set(entries "")
    set(releases "")
    foreach(language IN LISTS TESSERA_LANGUAGES)
        list(TRANSFORM arg_SETS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/${arg_FOLDER}/"
             OUTPUT_VARIABLE sources)
        list(TRANSFORM sources APPEND "_${language}.ts")
        set(release "${folder}/${name}_${language}.qm")
        add_custom_command(OUTPUT "${release}" DEPENDS ${sources} VERBATIM
            COMMAND "${TESSERA_LRELEASE}" -silent -nounfinished ${sources} -qm "${release}")
        list(APPEND releases "${release}")
        string(APPEND entries "        <file>${name}_${language}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${folder}/${resource}.qrc" @ONLY CONTENT
"<RCC>
    <qresource prefix=\"/translation\">
@entries@    </qresource>
</RCC>
")
    set(code "${folder}/qrc_${resource}.cpp")
    add_custom_command(OUTPUT "${code}" DEPENDS ${releases} "${folder}/${resource}.qrc" VERBATIM
        COMMAND Qt5::rcc --name ${resource} "${folder}/${resource}.qrc" -o "${code}")
    set_source_files_properties("${code}" PROPERTIES SKIP_AUTOGEN ON)
    target_sources(${target} PRIVATE "${code}")
endfunction()
