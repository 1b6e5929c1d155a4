// SPDX-License-Identifier: GPL-3.0-or-later
//
// How a function of the C library is replaced by one that notes the call and passes it on.
//
// The dynamic linker looks into the program before the libraries, so a function of the program with
// the same name is called in the library's place, by other libraries too. The original is the next
// one of that name.

#pragma once

#include "tests/support/AudioThreadGuard.h"

#include <atomic>
#include <cstdlib>
#include <dlfcn.h>

/// The original of an interposed function; `cache` keeps it. Ends the program when there is none.
template <typename Function>
Function* originalOf(const char* name, std::atomic<void*>& cache) {
    void* original = cache.load(std::memory_order_acquire);
    if (original == nullptr) {
        const AudioThreadGuardPause pause;
        original = dlsym(RTLD_NEXT, name);
        if (original == nullptr)
            std::abort();
        cache.store(original, std::memory_order_release);
    }
    return reinterpret_cast<Function*>(original);
}

/// Visible although everything else is hidden, or the libraries would not find it.
#define INTERPOSED extern "C" [[gnu::visibility("default")]]

// A type and a declarator cannot be put in parentheses.
// NOLINTBEGIN(bugprone-macro-parentheses)

/// Defines an interposed function: result type, name, parameters and arguments, both in
/// parentheses.
#define INTERPOSE(result, name, parameters, arguments)                                             \
    INTERPOSED result name parameters {                                                            \
        static std::atomic<void*> original{nullptr};                                               \
        AudioThreadGuard::note(#name);                                                             \
        return originalOf<result parameters>(#name, original) arguments;                           \
    }                                                                                              \
    static_assert(true)

// NOLINTEND(bugprone-macro-parentheses)
