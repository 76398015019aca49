# Warnings, sanitizers and the two kinds of library that every room is made of.

add_library(tessaly_options INTERFACE)
target_compile_options(tessaly_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    -ffp-contract=off # the same numbers on every processor
    $<$<BOOL:${TESSALY_WERROR}>:-Werror>)
if(TESSALY_SANITIZE)
    target_compile_options(tessaly_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_compile_definitions(tessaly_options INTERFACE _GLIBCXX_ASSERTIONS) # an index past the end within the capacity
    target_link_options(tessaly_options INTERFACE -fsanitize=address,undefined)
endif()
if(TESSALY_FUZZ)
    target_compile_options(tessaly_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# tessaly_library(<room> SOURCES ... [LINK ...]): a core library, tessaly_<room>. It never sees Qt.
function(tessaly_library room)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(tessaly_${room} STATIC ${arg_SOURCES})
    target_include_directories(tessaly_${room} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(tessaly_${room} PUBLIC ${arg_LINK} PRIVATE tessaly_options)
endfunction()

# tessaly_qt_library(<room> SOURCES ... LINK ...): the widgets of a room, tessaly_<room>_qt.
function(tessaly_qt_library room)
    cmake_parse_arguments(arg "" "" "SOURCES;LINK" ${ARGN})
    add_library(tessaly_${room}_qt STATIC ${arg_SOURCES})
    set_target_properties(tessaly_${room}_qt PROPERTIES AUTOMOC ON)
    target_include_directories(tessaly_${room}_qt PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_compile_definitions(tessaly_${room}_qt PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII)
    target_link_libraries(tessaly_${room}_qt PUBLIC ${arg_LINK} Qt6::Widgets PRIVATE tessaly_options)
endfunction()
