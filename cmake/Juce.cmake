# SPDX-License-Identifier: GPL-3.0-or-later
#
# JUCE, one static library per module, each compiled once per configuration from the module sources
# Debian ships: third_party::juce_core, third_party::juce_events, third_party::juce_data_structures.
# (JUCE's own CMake files would compile a module again in every target that uses it.)
#
# A layer that uses JUCE calls brolt_require_juce() first and links the highest module it needs. A
# further module is one more line at the end of this file.
#
# JUCE without windows: timers and asynchronous messages run on a message loop. In a plug-in that is
# the host's, or a thread of ours; a test or tool makes a juce::ScopedJuceInitialiser_GUI in main or
# in a fixture. None may be made while static objects are initialised: a library that is merely
# scanned by a host must not start threads.

set(BROLT_JUCE_MODULES /usr/share/juce/modules CACHE PATH "JUCE's modules (package juce-modules-source-data)")
mark_as_advanced(BROLT_JUCE_MODULES)

# What JUCE's sources need besides themselves, for the machine that is built for. The cross build
# gets its zlib from Debian too (below /usr/x86_64-w64-mingw32) and takes the archive: the import
# library beside it would want a DLL that no user has.
find_path(BROLT_zlib_INCLUDE zlib.h)
if(WIN32)
    set(zlibPackage libz-mingw-w64-dev)
    find_library(BROLT_zlib_LIBRARY NAMES libz.a)
else()
    set(zlibPackage zlib1g-dev)
    find_library(BROLT_zlib_LIBRARY NAMES z)
    find_path(BROLT_curl_INCLUDE curl/curl.h)
    find_library(BROLT_curl_LIBRARY NAMES curl)
endif()
mark_as_advanced(BROLT_zlib_INCLUDE BROLT_zlib_LIBRARY BROLT_curl_INCLUDE BROLT_curl_LIBRARY)

set(juceMissingPackages "")
if(NOT EXISTS "${BROLT_JUCE_MODULES}/juce_core/juce_core.h")
    list(APPEND juceMissingPackages juce-modules-source-data)
endif()
if(NOT BROLT_zlib_INCLUDE OR NOT BROLT_zlib_LIBRARY)
    list(APPEND juceMissingPackages ${zlibPackage})
endif()
if(NOT WIN32 AND (NOT BROLT_curl_INCLUDE OR NOT BROLT_curl_LIBRARY))
    list(APPEND juceMissingPackages libcurl4-openssl-dev)
endif()

# brolt_require_juce()
#
# Ends the configuration with the packages to install where JUCE cannot be built. To be called by
# the CMakeLists.txt of a layer that uses it.
function(brolt_require_juce)
    if(juceMissingPackages)
        file(RELATIVE_PATH layer "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
        list(JOIN juceMissingPackages " " packages)
        message(FATAL_ERROR "${layer} is built on JUCE; install ${packages} (scripts/setup does)")
    endif()
endfunction()

# Seen by JUCE's own files and by everything that includes them: one file with other settings and
# classes have two layouts.
add_library(juce_settings INTERFACE)
target_include_directories(juce_settings SYSTEM INTERFACE "${BROLT_JUCE_MODULES}")
target_compile_definitions(juce_settings INTERFACE
    JUCE_GLOBAL_MODULE_SETTINGS_INCLUDED=1
    JUCE_STANDALONE_APPLICATION=0
    JUCE_WEB_BROWSER=0
    JUCE_DISPLAY_SPLASH_SCREEN=0
    JUCE_REPORT_APP_USAGE=0
    JUCE_ASIO=0
    JUCE_WASAPI=0
    JUCE_DIRECTSOUND=0
    JUCE_JACK=0
    # JUCE's assertions and its leak detector, written to standard error.
    $<$<CONFIG:Debug>:_DEBUG=1>)
target_link_libraries(juce_settings INTERFACE Threads::Threads)
if(WIN32)
    target_compile_definitions(juce_settings INTERFACE
        _WIN32_WINNT=0x0A00
        JUCE_USE_CURL=0
        # Fonts through GDI.
        JUCE_USE_DIRECTWRITE=0)
else()
    target_compile_definitions(juce_settings INTERFACE JUCE_USE_CURL=1)
endif()

# brolt_add_juce_module(<module> [LINKS <target or library>...] [OPTIONS <compile option>...])
#
# third_party::<module> from the module's one source file, compiled when something links it.
# OPTIONS are for that file alone.
function(brolt_add_juce_module module)
    if(juceMissingPackages)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;OPTIONS")
    add_library(${module} STATIC EXCLUDE_FROM_ALL "${BROLT_JUCE_MODULES}/${module}/${module}.cpp")
    add_library(third_party::${module} ALIAS ${module})
    target_link_libraries(${module} PUBLIC juce_settings ${arg_LINKS})
    # Goes upwards only. juce_events would call into juce_gui_extra if it knew of it, and everything
    # that wants a timer would have to link windows.
    target_compile_definitions(${module} PUBLIC JUCE_MODULE_AVAILABLE_${module}=1)
    # JUCE's warnings are not ours.
    target_compile_options(${module} PRIVATE -w ${arg_OPTIONS})
    if(BROLT_SANITIZE STREQUAL "address")
        # The address sanitizer sees into JUCE, the one for undefined behaviour does not: JUCE counts
        # on two's complement in places (reading the number -2147483648 from a text negates the
        # smallest int), and here every finding ends the program.
        target_compile_options(${module} PRIVATE -fno-sanitize=undefined)
    endif()
endfunction()

if(WIN32)
    set(juceSystemLibraries uuid wsock32 wininet version ole32 ws2_32 oleaut32 imm32 comdlg32 shlwapi
        rpcrt4 winmm)
else()
    set(juceSystemLibraries "${BROLT_curl_LIBRARY}" rt ${CMAKE_DL_LIBS})
endif()

brolt_add_juce_module(juce_core LINKS "${BROLT_zlib_LIBRARY}" ${juceSystemLibraries})
brolt_add_juce_module(juce_events LINKS juce_core)
brolt_add_juce_module(juce_data_structures LINKS juce_events)
