// SPDX-License-Identifier: GPL-3.0-or-later
// How a host is going to run an instance.
#pragma once

#include "brolt/library/tests/support/Vst3.h"

struct HostSession {
    int channels = 2;
    double sampleRate = 44100.0; ///< Hz
    /// Of a block, as announced. Two blocks without a call count as the end of processing: so
    /// large, that is later than any test goes on, however slow the machine.
    int mostFrames = 1 << 22;
    Steinberg::int32 mode = Vst::kRealtime;
};
