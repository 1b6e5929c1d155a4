// SPDX-License-Identifier: GPL-3.0-or-later
// Copying texts into the fixed buffers that host interfaces hand us.
#pragma once

#include <cstddef>
#include <cstdio>

/// Copies text into buffer, cut to size - 1 characters and terminated; does nothing for a null
/// buffer or a size of 0. A null text counts as empty. [any thread]
inline void copyText(char* buffer, std::size_t size, const char* text) {
    if (buffer != nullptr && size > 0)
        std::snprintf(buffer, size, "%s", text != nullptr ? text : "");
}
