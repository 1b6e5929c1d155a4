# SPDX-License-Identifier: GPL-3.0-or-later
#
# Cross build for 64-bit Windows with Debian's mingw-w64. The posix flavour of the compiler: the
# other one of this version has no std::thread.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# What scripts/build-windows-dependencies made.
get_filename_component(BROLT_DEPENDENCIES "${CMAKE_CURRENT_LIST_DIR}/../build/deps/windows" ABSOLUTE)

# Headers and libraries of the machine the build runs on are none of ours.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 "${BROLT_DEPENDENCIES}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Programs of this build run under Wine, in a prefix of the build folder.
get_filename_component(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/run-windows" ABSOLUTE)
