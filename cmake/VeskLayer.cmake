# SPDX-License-Identifier: MIT
#
# One layer of the house: a static library whose headers are seen, and whose symbols are linked,
# only where the layer is named under USES.

# Every compile of our own code: warnings and Qt's strict definitions.
function(vesk_compile_options target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
        -Wformat=2 -Wcast-align $<$<BOOL:${VESK_WARNINGS_AS_ERRORS}>:-Werror>)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH
        QT_STRICT_ITERATORS QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(VESK_FUZZ)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
    if(VESK_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=address,undefined -fno-sanitize-recover=all
            -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    endif()
endfunction()

# Puts a link to each listed header under the build tree, in a folder that only users of the layer
# have on their include path. "#include "notes/note.h"" therefore compiles in exactly the layers
# that name notes under USES.
function(vesk_layer_headers target)
    set(root ${CMAKE_BINARY_DIR}/layers/${target})
    file(RELATIVE_PATH folder ${CMAKE_SOURCE_DIR}/src ${CMAKE_CURRENT_SOURCE_DIR})
    foreach(source IN LISTS ARGN)
        if(source MATCHES "\\.h$")
            cmake_path(GET source PARENT_PATH parent)
            file(MAKE_DIRECTORY ${root}/${folder}/${parent})
            file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${source} ${root}/${folder}/${source} SYMBOLIC)
        endif()
    endforeach()
    target_include_directories(${target} PUBLIC ${root})
    # The code that moc and the QML type registration generate includes headers by bare name.
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()

# vesk_layer(<name> SOURCES <file>... [USES <layer>...] [LIBRARIES <library>...]
#            [QML_URI <uri> QML_FILES <file>... [QML_USES <uri>...]])
#
# Makes the library vesk_<name>. SOURCES lists headers too. USES are other layers, LIBRARIES are
# foreign targets; both are handed on to users. With QML_URI the layer has a QML module of its own;
# QML_USES are the modules of the types that its own C++ types have for properties.
# Besides, an executable links the whole of the layer with nothing but what it declares, so that a
# dependency that is not declared does not link.
function(vesk_layer name)
    cmake_parse_arguments(arg "" "QML_URI" "SOURCES;USES;LIBRARIES;QML_FILES;QML_USES" ${ARGN})
    set(target vesk_${name})
    if(arg_QML_URI)
        qt_add_library(${target} STATIC)
        string(REPLACE "." "/" path ${arg_QML_URI})
        qt_add_qml_module(${target} URI ${arg_QML_URI} VERSION 1.0 RESOURCE_PREFIX /qt/qml
            OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/qml/${path} NO_PLUGIN DEPENDENCIES QtQuick ${arg_QML_USES}
            SOURCES ${arg_SOURCES} QML_FILES ${arg_QML_FILES})
        target_link_libraries(${target} PUBLIC Qt6::Quick)
        # What the QML compiler writes shadows names of its own.
        get_target_property(generated ${target} SOURCES)
        list(FILTER generated INCLUDE REGEX "/qmlcache/")
        set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS -Wno-shadow)
    else()
        qt_add_library(${target} STATIC ${arg_SOURCES})
    endif()
    list(TRANSFORM arg_USES PREPEND vesk_ OUTPUT_VARIABLE uses)
    target_link_libraries(${target} PUBLIC Qt6::Core QCoro6::Core ${uses} ${arg_LIBRARIES})
    vesk_layer_headers(${target} ${arg_SOURCES})
    vesk_compile_options(${target})

    set(check ${target}_links_alone)
    file(WRITE ${CMAKE_BINARY_DIR}/layers/${check}.cpp "int main() { return 0; }\n")
    add_executable(${check} ${CMAKE_BINARY_DIR}/layers/${check}.cpp)
    set_target_properties(${check} PROPERTIES AUTOMOC OFF
        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/layers)
    target_link_libraries(${check} PRIVATE $<LINK_LIBRARY:WHOLE_ARCHIVE,${target}>)
endfunction()
