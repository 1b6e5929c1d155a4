// SPDX-License-Identifier: GPL-3.0-or-later
// Where an instance sits in its processing host's slots.
#pragma once

#include <cstdint>

struct NoxSlotRecord {
    std::int32_t index;
};
