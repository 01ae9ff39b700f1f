# SPDX-License-Identifier: GPL-3.0-or-later
# The compiler settings that every target of this project shares.
add_library(brinemark_options INTERFACE)
target_compile_definitions(brinemark_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    BRINEMARK_VERSION="${PROJECT_VERSION}")
if(MSVC)
    target_compile_options(brinemark_options INTERFACE /W4 /utf-8 $<$<BOOL:${BRINEMARK_WARNINGS_AS_ERRORS}>:/WX>)
else()
    target_compile_options(brinemark_options INTERFACE
        -Wall -Wextra -Wpedantic $<$<BOOL:${BRINEMARK_WARNINGS_AS_ERRORS}>:-Werror>)
endif()
if(BRINEMARK_SANITIZE)
    target_compile_options(brinemark_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer)
    target_link_options(brinemark_options INTERFACE -fsanitize=address,undefined)
endif()

# brinemark_library(NAME LINKS targets... [RECURSE])
#
# Defines a static library of every source file in the calling folder; RECURSE adds the folders below. A new source file
# needs no entry anywhere. Headers are included relative to src/ ("model/Tank.h").
function(brinemark_library name)
    cmake_parse_arguments(ARG "RECURSE" "" "LINKS" ${ARGN})
    set(glob GLOB)
    if(ARG_RECURSE)
        set(glob GLOB_RECURSE)
    endif()
    file(${glob} sources CONFIGURE_DEPENDS "*.cpp" "*.h")
    add_library(${name} STATIC ${sources})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC brinemark_options ${ARG_LINKS})
endfunction()
