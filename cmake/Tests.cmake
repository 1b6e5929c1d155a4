# SPDX-License-Identifier: GPL-3.0-or-later
#
# Test executables, and the list of them that scripts/run-tests works through.
#
# The folder says what kind of test a file is, for every layer alike:
#   tests/               unit tests: every configuration but the thread sanitizer
#   tests/concurrency/   tests with several threads: every configuration, the thread sanitizer too
#   tests/audio_thread/  tests under the interposed allocator and lock detector of tests/support:
#                        the native release build alone, since sanitizers interpose the same calls
#   tests/*.sh           programs driven from a shell: native release and Windows

enable_testing()

# GoogleTest is built from the sources Debian ships, in every configuration alike: the cross build
# has no ready-made library, and the thread sanitizer must see GoogleTest's own locks.
set(BROLT_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "GoogleTest's sources (package googletest)")

# The command that starts a program of this build; nothing for a native one.
set(BROLT_LAUNCHER ${CMAKE_CROSSCOMPILING_EMULATOR})

# The test executables and what they need. A thread sanitizer build is for these alone.
add_custom_target(brolt_test_programs)

define_property(GLOBAL PROPERTY BROLT_TEST_LIST BRIEF_DOCS "Lines of tests.txt")

# The tests' own files. The sanitizer of undefined behaviour watches what they test, not them: it
# would take a third of the time that they take to compile.
set(brolt_test_options -O0 -g1)
if(BROLT_SANITIZE STREQUAL "address")
    list(APPEND brolt_test_options -fno-sanitize=undefined)
endif()

if(EXISTS "${BROLT_GOOGLETEST_SOURCE}/CMakeLists.txt")
    set(BROLT_TESTS_AVAILABLE ON)
    set(INSTALL_GTEST OFF)
    set(BUILD_GMOCK ON)
    add_subdirectory("${BROLT_GOOGLETEST_SOURCE}" "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
    target_link_libraries(gtest PUBLIC Threads::Threads)

    # Compiles the test library's header for all test executables; it is no test itself.
    file(WRITE "${CMAKE_BINARY_DIR}/test-headers.cpp" "int main() {}\n")
    add_executable(brolt_test_headers EXCLUDE_FROM_ALL "${CMAKE_BINARY_DIR}/test-headers.cpp")
    target_link_libraries(brolt_test_headers PRIVATE brolt_settings gtest)
    target_compile_options(brolt_test_headers PRIVATE ${brolt_test_options})
    brolt_precompile(brolt_test_headers FROM brolt_test_headers HEADERS <gtest/gtest.h>)
else()
    # ./run gets by without: it builds the program alone.
    set(BROLT_TESTS_AVAILABLE OFF)
    message(STATUS "No GoogleTest in ${BROLT_GOOGLETEST_SOURCE}: this build has no tests")
endif()

# brolt_register_test(<kind> <name> LABELS <label>... COMMAND <word>...)
#
# Adds the test to ctest and to tests.txt. <kind> is "gtest" or "script" and tells run-tests how to
# count (see there).
function(brolt_register_test kind name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LABELS;COMMAND")
    add_test(NAME ${name} COMMAND ${arg_COMMAND})
    set_tests_properties(${name} PROPERTIES LABELS "${arg_LABELS}" TIMEOUT 900)
    string(JOIN "\t" line "${kind}" "${name}" ${arg_COMMAND})
    set_property(GLOBAL APPEND PROPERTY BROLT_TEST_LIST "${line}")
endfunction()

# brolt_add_test_executable(NAME <target> SOURCES <file>... LINKS <target>...
#                           [DEFINITIONS <definition>...] [CONCURRENCY] [NATIVE_ONLY] [OPTIMISED]
#                           [HEADERS_FROM <target> HEADERS <header>...])
#
# One GoogleTest executable. HEADERS_FROM: with these headers precompiled beside the test library's
# (see brolt_precompile). CONCURRENCY: runs under the thread sanitizer too. NATIVE_ONLY: exists
# in the native release build alone. OPTIMISED: the tests themselves compute much and are compiled
# as what they test; others are not optimised, which takes half the time to compile.
function(brolt_add_test_executable)
    cmake_parse_arguments(PARSE_ARGV 0 arg "CONCURRENCY;NATIVE_ONLY;OPTIMISED" "NAME;HEADERS_FROM"
        "SOURCES;LINKS;DEFINITIONS;HEADERS")
    if(NOT BROLT_TESTS_AVAILABLE OR NOT arg_SOURCES)
        return()
    endif()
    if(arg_NATIVE_ONLY AND (BROLT_SANITIZE OR CMAKE_CROSSCOMPILING))
        return()
    endif()
    if(BROLT_SANITIZE STREQUAL "thread" AND NOT arg_CONCURRENCY)
        return()
    endif()

    add_executable(${arg_NAME} ${arg_SOURCES})
    target_link_libraries(${arg_NAME} PRIVATE brolt_settings ${arg_LINKS} gmock_main gmock gtest)
    target_compile_definitions(${arg_NAME} PRIVATE ${arg_DEFINITIONS})
    if(NOT arg_OPTIMISED)
        target_compile_options(${arg_NAME} PRIVATE ${brolt_test_options})
    endif()
    if(arg_HEADERS_FROM)
        brolt_precompile(${arg_NAME} FROM ${arg_HEADERS_FROM} HEADERS ${arg_HEADERS} <gtest/gtest.h>)
    elseif(NOT arg_OPTIMISED)
        brolt_precompile(${arg_NAME} FROM brolt_test_headers)
    endif()

    add_dependencies(brolt_test_programs ${arg_NAME})

    set(labels unit)
    if(arg_CONCURRENCY)
        set(labels concurrency)
    endif()
    brolt_register_test(gtest ${arg_NAME} LABELS ${labels}
        COMMAND ${BROLT_LAUNCHER} "$<TARGET_FILE:${arg_NAME}>")
endfunction()

# brolt_add_tests(NAME <prefix> LINKS <target>... [DEFINITIONS <definition>...] [EXCLUDE <regex>...]
#                 [OPTIMISED])
#
# The test executables of the current folder's tests/: <prefix>_tests, <prefix>_concurrency_tests
# and <prefix>_audio_thread_tests, each as far as it has sources. EXCLUDE leaves files out of the
# first (see brolt_collect_sources).
function(brolt_add_tests)
    cmake_parse_arguments(PARSE_ARGV 0 arg "OPTIMISED" "NAME" "LINKS;DEFINITIONS;EXCLUDE")
    set(optimised "")
    if(arg_OPTIMISED)
        set(optimised OPTIMISED)
    endif()

    brolt_collect_sources(OUT unit PATTERNS "tests/*.h" "tests/*.cpp"
        EXCLUDE "^tests/concurrency/" "^tests/audio_thread/" ${arg_EXCLUDE})
    brolt_add_test_executable(NAME ${arg_NAME}_tests SOURCES ${unit}
        LINKS ${arg_LINKS} DEFINITIONS ${arg_DEFINITIONS} ${optimised})

    brolt_collect_sources(OUT concurrency PATTERNS "tests/concurrency/*.h" "tests/concurrency/*.cpp")
    brolt_add_test_executable(NAME ${arg_NAME}_concurrency_tests SOURCES ${concurrency}
        LINKS ${arg_LINKS} DEFINITIONS ${arg_DEFINITIONS} CONCURRENCY ${optimised})

    brolt_collect_sources(OUT audioThread PATTERNS "tests/audio_thread/*.h" "tests/audio_thread/*.cpp")
    brolt_add_test_executable(NAME ${arg_NAME}_audio_thread_tests SOURCES ${audioThread}
        LINKS ${arg_LINKS} brolt_test_support DEFINITIONS ${arg_DEFINITIONS} NATIVE_ONLY ${optimised})
endfunction()

# brolt_add_script_tests(NAME <prefix> PROGRAM <target>)
#
# Registers each tests/*.sh of the current folder. A script gets, as its arguments, the words of the
# command that starts the program. It exits with 0 when it passed, 77 when it could not run (its
# last line says why), anything else when it failed; a last line "N passed, N failed, N skipped"
# counts its cases one by one, and a line that begins with SKIP gives the reason for a skipped one.
function(brolt_add_script_tests)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME;PROGRAM" "")
    if(BROLT_SANITIZE OR NOT BROLT_TESTS_AVAILABLE)
        return()
    endif()
    file(GLOB scripts CONFIGURE_DEPENDS "tests/*.sh")
    foreach(script IN LISTS scripts)
        get_filename_component(stem "${script}" NAME_WE)
        brolt_register_test(script ${arg_NAME}_${stem} LABELS unit
            COMMAND bash "${script}" ${BROLT_LAUNCHER} "$<TARGET_FILE:${arg_PROGRAM}>")
    endforeach()
endfunction()

# brolt_write_test_list()
#
# Writes tests.txt into the build folder: one test a line, its kind, its name and the words of its
# command separated by tabulators. To be called after the last test.
function(brolt_write_test_list)
    get_property(lines GLOBAL PROPERTY BROLT_TEST_LIST)
    list(JOIN lines "\n" text)
    file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/tests.txt" CONTENT "${text}\n")
endfunction()
