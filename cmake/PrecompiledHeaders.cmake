# SPDX-License-Identifier: GPL-3.0-or-later
#
# Headers that take the compiler longer than the files that include them: the test library's, the
# toolkit's. The compiler reads them once for each kind of target. Files include what they use all
# the same.

# What everything with widgets reads.
set(widgetsHeaders <juce_gui_basics/juce_gui_basics.h> <functional> <map> <memory> <string> <vector>)

# brolt_precompile(<target> FROM <target> HEADERS <header>...)
#
# The target named by FROM compiles the headers, the others take what it made. They must be compiled
# with the same options; definitions may differ as far as the headers do not ask for them. The
# compiler refuses anything else.
function(brolt_precompile target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "FROM" "HEADERS")
    # Lets ccache know such files.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
    if(target STREQUAL arg_FROM)
        target_precompile_headers(${target} PRIVATE ${arg_HEADERS})
    else()
        target_precompile_headers(${target} REUSE_FROM ${arg_FROM})
    endif()
endfunction()
