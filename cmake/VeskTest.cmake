# SPDX-License-Identifier: MIT

# vesk_test(<name> SOURCES <file>... [USES <layer>...] [LIBRARIES <library>...])
#
# Creates the test tst_<name> in a folder of tests/ and registers it. It runs offscreen and renders without a
# GPU, as set in tests/unit.env.
function(vesk_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;USES;LIBRARIES" ${ARGN})
    set(target tst_${name})
    qt_add_executable(${target} ${arg_SOURCES})
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
    list(TRANSFORM arg_USES PREPEND vesk_ OUTPUT_VARIABLE uses)
    target_link_libraries(${target} PRIVATE Qt6::Test ${uses} ${arg_LIBRARIES})
    # For virtualdesktop/files.h.
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
    vesk_compile_options(${target})
    add_test(NAME ${name} COMMAND ${target})
    file(STRINGS ${PROJECT_SOURCE_DIR}/tests/unit.env environment)
    set_tests_properties(${name} PROPERTIES LABELS unit TIMEOUT 120 ENVIRONMENT "${environment}")
endfunction()
