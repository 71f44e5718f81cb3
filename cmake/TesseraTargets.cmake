# SPDX-FileCopyrightText: 2026 Tessera contributors
# SPDX-License-Identifier: MIT

# Adds the given files of the current folder to TARGET. Headers join a header set, so that each of
# them is checked to compile by itself.
function(tessera_sources target)
    target_sources(${target} PRIVATE ${ARGN})
    set(headers ${ARGN})
    list(FILTER headers INCLUDE REGEX "\\.h$")
    if(headers)
        file(RELATIVE_PATH set_name "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
        string(MAKE_C_IDENTIFIER "headers_${set_name}" set_name)
        set(root "${PROJECT_SOURCE_DIR}")
        if(CMAKE_CURRENT_SOURCE_DIR MATCHES "^${PROJECT_SOURCE_DIR}/tessera/")
            set(root "${PROJECT_SOURCE_DIR}/tessera")
        endif()
        target_sources(${target} PUBLIC FILE_SET ${set_name} TYPE HEADERS
                       BASE_DIRS "${root}" FILES ${headers})
    endif()
endfunction()

# tessera_add_library(NAME SHARED|STATIC [LIBRARIES ...]): a layer of the project.
# Its include roots are the repository and tessera/.
function(tessera_add_library name kind)
    cmake_parse_arguments(arg "" "" "LIBRARIES" ${ARGN})
    add_library(${name} ${kind})
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/tessera")
    target_link_libraries(${name} PUBLIC ${arg_LIBRARIES} PRIVATE tessera_flags)
endfunction()

# tessera_add_plugin(NAME SOURCES ... [LIBRARIES ...]): a module that the viewer loads at run time.
function(tessera_add_plugin name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_library(${name} MODULE ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} tessera_flags)
    set_target_properties(${name} PROPERTIES
        LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/${TESSERA_PLUGIN_DIR}")
    install(TARGETS ${name} LIBRARY DESTINATION "${TESSERA_PLUGIN_DIR}")
endfunction()

# tessera_add_test(NAME name SOURCES ... [LIBRARIES ...] [NEEDS_DISPLAY]): one test program.
# Without NEEDS_DISPLAY it runs on Qt's offscreen platform, with it on the X server in DISPLAY.
function(tessera_add_test)
    cmake_parse_arguments(arg "NEEDS_DISPLAY" "NAME" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${arg_NAME} ${arg_SOURCES})
    target_link_libraries(${arg_NAME} PRIVATE $<TARGET_NAME_IF_EXISTS:tesseratestsupport>
                          $<TARGET_NAME_IF_EXISTS:tesseracore> vantrelhost
                          $<TARGET_NAME_IF_EXISTS:simulation>
                          ${arg_LIBRARIES} Qt5::Test tessera_flags)
    set_target_properties(${arg_NAME} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
    add_test(NAME ${arg_NAME} COMMAND ${arg_NAME})
    set(platform offscreen)
    if(arg_NEEDS_DISPLAY)
        set(platform xcb)
        set_property(TEST ${arg_NAME} PROPERTY LABELS display)
        # One pointer, one keyboard focus: never two such tests at a time.
        set_property(TEST ${arg_NAME} PROPERTY RESOURCE_LOCK display)
    endif()
    set(timeout 300)
    if(TESSERA_SANITIZE) # slows a test down tenfold and more
        set(timeout 1200)
    endif()
    set_property(TEST ${arg_NAME} PROPERTY TIMEOUT ${timeout})
    set_property(TEST ${arg_NAME} PROPERTY ENVIRONMENT
        "QT_QPA_PLATFORM=${platform}" QT_XCB_GL_INTEGRATION=none QT_QUICK_BACKEND=software QT_FONT_DPI=96 LC_ALL=C.UTF-8
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/cmake/leaks-of-others.txt:print_suppressions=0"
        ASAN_OPTIONS=fast_unwind_on_malloc=0 UBSAN_OPTIONS=print_stacktrace=1)
endfunction()

# Runs a test program once more, as <name>_<SUFFIX>, with these variables in place of the usual ones.
function(tessera_repeat_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "SUFFIX" "ENVIRONMENT")
    get_test_property(${name} ENVIRONMENT environment)
    get_test_property(${name} TIMEOUT timeout)
    add_test(NAME ${name}_${arg_SUFFIX} COMMAND ${name})
    set_tests_properties(${name}_${arg_SUFFIX} PROPERTIES TIMEOUT ${timeout}
        ENVIRONMENT "${environment};${arg_ENVIRONMENT}")
endfunction()
