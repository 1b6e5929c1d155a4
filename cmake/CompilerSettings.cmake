# SPDX-License-Identifier: GPL-3.0-or-later
#
# What every target of ours is compiled and linked with, as interface libraries, so that
# third-party code built beside ours (GoogleTest) keeps its own settings.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# The layers end up in a shared library that exports its plug-in entry points and nothing else.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

find_package(Threads REQUIRED)

set(BROLT_SANITIZE "" CACHE STRING "Sanitizers of this build: empty, 'address' (with undefined) or 'thread'")
set_property(CACHE BROLT_SANITIZE PROPERTY STRINGS "" address thread)

if(BROLT_SANITIZE STREQUAL "address")
    set(sanitizerOptions -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
elseif(BROLT_SANITIZE STREQUAL "thread")
    set(sanitizerOptions -fsanitize=thread -fno-omit-frame-pointer)
elseif(NOT BROLT_SANITIZE STREQUAL "")
    message(FATAL_ERROR "BROLT_SANITIZE is '${BROLT_SANITIZE}'; use nothing, 'address' or 'thread'")
endif()

# Sanitizers go to every target, third-party code included: a thread sanitizer that sees half of
# the locks reports races that are none.
if(sanitizerOptions)
    add_compile_options(${sanitizerOptions})
    add_link_options(${sanitizerOptions})
endif()

add_library(brolt_settings INTERFACE)
target_include_directories(brolt_settings INTERFACE "${PROJECT_SOURCE_DIR}")
target_link_libraries(brolt_settings INTERFACE Threads::Threads)
target_compile_options(brolt_settings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Werror
    # The same bits on every machine: a fused multiply-add rounds once where the formulas round twice.
    -ffp-contract=off)

if(BROLT_SANITIZE)
    # The instrumentation hides initialisations from this check; the release build keeps it.
    target_compile_options(brolt_settings INTERFACE -Wno-maybe-uninitialized)
endif()

if(WIN32)
    # A program needs none of the compiler's own DLLs beside it.
    target_link_options(brolt_settings INTERFACE -static -static-libgcc -static-libstdc++)
    target_compile_definitions(brolt_settings INTERFACE
        _WIN32_WINNT=0x0A00 UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
        # printf and friends of the C99 kind, with %zu and %lld, instead of the system's old ones.
        __USE_MINGW_ANSI_STDIO=1)
endif()

# The signal layer and everything that has to agree with it bit for bit (its reference in the tests).
# Neither option changes a value: they allow square roots and selections without errno and traps.
add_library(brolt_signal_arithmetic INTERFACE)
target_compile_options(brolt_signal_arithmetic INTERFACE -fno-math-errno -fno-trapping-math)
