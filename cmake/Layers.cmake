# SPDX-License-Identifier: GPL-3.0-or-later
#
# One static library per layer.

# brolt_collect_sources(OUT <variable> PATTERNS <glob>... [EXCLUDE <regex>...])
#
# The files below the current source folder that match a pattern (subfolders included), looked for
# again at every build. EXCLUDE takes regular expressions on the path relative to that folder.
function(brolt_collect_sources)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUT" "PATTERNS;EXCLUDE")
    file(GLOB_RECURSE found RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" CONFIGURE_DEPENDS ${arg_PATTERNS})
    foreach(pattern IN LISTS arg_EXCLUDE)
        list(FILTER found EXCLUDE REGEX "${pattern}")
    endforeach()
    list(TRANSFORM found PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
    set(${arg_OUT} "${found}" PARENT_SCOPE)
endfunction()

# brolt_add_layer(NAME <target> [PATTERNS <glob>...] [EXCLUDE <regex>...]
#                 [LINKS <layer>...] [PRIVATE_LINKS <target>...])
#
# A layer from the .h and .cpp files of the current folder and its subfolders, tests/ left out.
# PATTERNS replaces these where a layer does not own its whole folder, EXCLUDE leaves files out
# (see brolt_collect_sources). LINKS names the layers it sees, which those above it see through it;
# PRIVATE_LINKS stay its own business. A layer without a .cpp file is an interface library, so that
# a folder may begin with headers.
function(brolt_add_layer)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME" "PATTERNS;EXCLUDE;LINKS;PRIVATE_LINKS")
    if(NOT arg_PATTERNS)
        set(arg_PATTERNS "*.h" "*.cpp")
    endif()
    brolt_collect_sources(OUT sources PATTERNS ${arg_PATTERNS} EXCLUDE "^tests/" "/tests/" ${arg_EXCLUDE})
    set(bodies ${sources})
    list(FILTER bodies INCLUDE REGEX "\\.cpp$")
    if(bodies)
        add_library(${arg_NAME} STATIC ${sources})
        target_link_libraries(${arg_NAME} PUBLIC ${arg_LINKS} PRIVATE brolt_settings ${arg_PRIVATE_LINKS})
    else()
        add_library(${arg_NAME} INTERFACE)
        target_link_libraries(${arg_NAME} INTERFACE ${arg_LINKS})
    endif()
endfunction()
