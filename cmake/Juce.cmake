# SPDX-License-Identifier: GPL-3.0-or-later
#
# JUCE, one static library per module, each compiled once per configuration from the module sources
# Debian ships: third_party::juce_core, third_party::juce_events, third_party::juce_data_structures,
# third_party::juce_graphics, third_party::juce_gui_basics. (JUCE's own CMake files would compile a
# module again in every target that uses it.)
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

set(juceMissingPackages "")
if(NOT EXISTS "${BROLT_JUCE_MODULES}/juce_core/juce_core.h")
    list(APPEND juceMissingPackages juce-modules-source-data)
endif()

# brolt_find_for_juce(<name> PACKAGE <package> HEADER <file> [FOLDER <suffix>] [LIBRARY <name>...])
#
# What JUCE's sources need besides themselves, for the machine that is built for: sets
# BROLT_<name>_INCLUDE and BROLT_<name>_LIBRARY, or notes that the package is missing.
function(brolt_find_for_juce name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PACKAGE;HEADER;FOLDER" "LIBRARY")
    find_path(BROLT_${name}_INCLUDE "${arg_HEADER}" PATH_SUFFIXES ${arg_FOLDER})
    mark_as_advanced(BROLT_${name}_INCLUDE)
    set(found ${BROLT_${name}_INCLUDE})
    if(arg_LIBRARY)
        find_library(BROLT_${name}_LIBRARY NAMES ${arg_LIBRARY})
        mark_as_advanced(BROLT_${name}_LIBRARY)
        if(NOT BROLT_${name}_LIBRARY)
            set(found NO)
        endif()
    endif()
    if(NOT found)
        list(APPEND juceMissingPackages ${arg_PACKAGE})
        set(juceMissingPackages "${juceMissingPackages}" PARENT_SCOPE)
    endif()
endfunction()

if(WIN32)
    # zlib is from Debian here too (below /usr/x86_64-w64-mingw32), and it is the archive: the import
    # library beside it would want a DLL that no user has. The others are built for the purpose.
    set(madeHere "what scripts/build-windows-dependencies makes")
    brolt_find_for_juce(zlib PACKAGE libz-mingw-w64-dev HEADER zlib.h LIBRARY libz.a)
    brolt_find_for_juce(png PACKAGE ${madeHere} HEADER png.h LIBRARY libpng16.a)
    brolt_find_for_juce(jpeg PACKAGE ${madeHere} HEADER jpegint.h LIBRARY libjpeg.a)
else()
    brolt_find_for_juce(zlib PACKAGE zlib1g-dev HEADER zlib.h LIBRARY z)
    brolt_find_for_juce(png PACKAGE libpng-dev HEADER png.h LIBRARY png16)
    brolt_find_for_juce(jpeg PACKAGE libjpeg62-turbo-dev HEADER jpegint.h LIBRARY jpeg)
    brolt_find_for_juce(curl PACKAGE libcurl4-openssl-dev HEADER curl/curl.h LIBRARY curl)
    brolt_find_for_juce(freetype PACKAGE libfreetype-dev HEADER ft2build.h FOLDER freetype2 LIBRARY freetype)
    # JUCE opens these libraries itself, when there is a window to show.
    brolt_find_for_juce(x11 PACKAGE libx11-dev HEADER X11/Xlib.h)
    brolt_find_for_juce(xext PACKAGE libxext-dev HEADER X11/extensions/XShm.h)
    brolt_find_for_juce(xrandr PACKAGE libxrandr-dev HEADER X11/extensions/Xrandr.h)
    brolt_find_for_juce(xinerama PACKAGE libxinerama-dev HEADER X11/extensions/Xinerama.h)
    brolt_find_for_juce(xcursor PACKAGE libxcursor-dev HEADER X11/Xcursor/Xcursor.h)
endif()
list(REMOVE_DUPLICATES juceMissingPackages)

# brolt_require_juce()
#
# Ends the configuration with the packages to install where JUCE cannot be built. To be called by
# the CMakeLists.txt of a layer that uses it.
function(brolt_require_juce)
    if(juceMissingPackages)
        file(RELATIVE_PATH layer "${PROJECT_SOURCE_DIR}" "${CMAKE_CURRENT_SOURCE_DIR}")
        list(JOIN juceMissingPackages ", " packages)
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

# brolt_add_juce_module(<module> [LINKS <target or library>...] [OPTIONS <compile option>...]
#                       [INCLUDES <folder>...])
#
# third_party::<module> from the module's one source file, compiled when something links it.
# OPTIONS and INCLUDES, folders that come before the system's, are for that file alone.
function(brolt_add_juce_module module)
    if(juceMissingPackages)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;OPTIONS;INCLUDES")
    add_library(${module} STATIC EXCLUDE_FROM_ALL "${BROLT_JUCE_MODULES}/${module}/${module}.cpp")
    add_library(third_party::${module} ALIAS ${module})
    target_link_libraries(${module} PUBLIC juce_settings ${arg_LINKS})
    # Goes upwards only. juce_events would call into juce_gui_extra if it knew of it, and everything
    # that wants a timer would have to link windows.
    target_compile_definitions(${module} PUBLIC JUCE_MODULE_AVAILABLE_${module}=1)
    target_include_directories(${module} PRIVATE ${arg_INCLUDES})
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
    set(juceFonts gdi32)
    set(juceWindowing dxgi gdi32 comctl32)
    # It has more sections than the usual format of object files can count.
    set(juceWindowingOptions -Wa,-mbig-obj)
else()
    set(juceSystemLibraries "${BROLT_curl_LIBRARY}" rt ${CMAKE_DL_LIBS})
    set(juceFonts "${BROLT_freetype_LIBRARY}")
    set(juceWindowing ${CMAKE_DL_LIBS})
    # Its whole debug information would take a third of the time and half a gigabyte more.
    set(juceWindowingOptions -g1)
endif()

brolt_add_juce_module(juce_core LINKS "${BROLT_zlib_LIBRARY}" ${juceSystemLibraries})
brolt_add_juce_module(juce_events LINKS juce_core)
brolt_add_juce_module(juce_data_structures LINKS juce_events)
brolt_add_juce_module(juce_graphics
    LINKS juce_events ${juceFonts} "${BROLT_png_LIBRARY}" "${BROLT_jpeg_LIBRARY}" "${BROLT_zlib_LIBRARY}"
    INCLUDES "${CMAKE_CURRENT_LIST_DIR}/shims/juce_graphics" "${BROLT_png_INCLUDE}" "${BROLT_jpeg_INCLUDE}"
        ${BROLT_freetype_INCLUDE})
brolt_add_juce_module(juce_gui_basics LINKS juce_graphics juce_data_structures ${juceWindowing}
    OPTIONS ${juceWindowingOptions})
