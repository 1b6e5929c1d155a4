// SPDX-License-Identifier: GPL-3.0-or-later
// How functions are handed out of the library. Everything else in it is hidden.
#pragma once

#ifdef _WIN32
#    define BROLT_ENTRY_POINT extern "C" __declspec(dllexport)
#else
#    define BROLT_ENTRY_POINT extern "C" __attribute__((visibility("default")))
#endif
