// SPDX-License-Identifier: GPL-3.0-or-later
// One meter record: seven 32-bit words that the editor and host meters read. What the words mean is
// the product's to say.
#pragma once

#include <cstddef>
#include <cstdint>

struct NoxMeterRecord {
    std::int32_t index; ///< the record's own position in the table
    float values[6];    ///< words 1 to 6
};

static_assert(sizeof(NoxMeterRecord) == 28);
static_assert(offsetof(NoxMeterRecord, values) == 4);
