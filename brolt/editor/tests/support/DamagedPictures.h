// SPDX-License-Identifier: GPL-3.0-or-later
// Picture files as they may be found on a disk that has seen better days.
#pragma once

#include <juce_core/juce_core.h>

#include <vector>

using FileBytes = std::vector<std::uint8_t>;

struct DamagedPicture {
    const char* how;
    FileBytes bytes;
};

/// Cut off in the midst, empty, random, and with a header that speaks of 30000 by 30000 pixels.
[[nodiscard]] std::vector<DamagedPicture> damagedCopiesOf(const FileBytes& picture);
