// SPDX-License-Identifier: GPL-3.0-or-later
//
// Renders one file: reader, renderer, writer and whoever listens to them, put together.

#pragma once

#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/RendererFactory.h"

#include <cstdint>

struct RenderSummary {
    std::int64_t frames;
    int channels;
    int sampleRate;                      ///< Hz
    float peak;                          ///< of the output, linear; may be infinite or not a number
    std::int64_t samplesBeyondFullScale; ///< that the output's encoding could not hold
    std::size_t changesAfterEnd;         ///< automation at or after the last frame
    double seconds;                      ///< that reading, rendering and writing took
};

/// All output files appear at the end, or none. Throws HostError, or Interrupted when the user ends
/// the program. [message thread]
RenderSummary renderFile(RendererFactory& factory, const RenderPlan& plan,
                         const RenderFiles& files);
