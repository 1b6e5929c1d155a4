// SPDX-License-Identifier: GPL-3.0-or-later
//
// What can be seen inside the processor while it runs. Only the plug-in model shows it; plug-in
// interfaces hand over audio and parameters.

#pragma once

#include "brolt/signal/Coefficients.h"

#include <array>

/// What the oscillators do at the end of the last block.
struct OscillatorReading {
    std::array<double, 2> frequency; ///< Hz, as it sounds
    std::array<double, 2> level;     ///< level detector, linear; 0 while the oscillator is off
};

class ProcessorInsight {
public:
    virtual ~ProcessorInsight() = default;

    /// The record that the last block used; null before the first block. It stays until the next
    /// block. [message thread]
    [[nodiscard]] virtual const Coefficients* recordInUse() const = 0;

    /// [message thread]
    virtual OscillatorReading readOscillators() = 0;
};
