// SPDX-License-Identifier: GPL-3.0-or-later
// What this process holds of the system at a moment, to see what loading and unloading leave
// behind.
#pragma once

#include <cstddef>
#include <optional>

struct ProcessResources {
    std::size_t threads = 0;
    std::size_t handles = 0; ///< open files and whatever else the system counts with them
    /// Bytes given out by the allocator; nothing where that cannot be told, as under sanitizers,
    /// which keep freed memory for a while.
    std::optional<std::size_t> allocated;

    static ProcessResources now();
};
