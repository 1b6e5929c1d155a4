// SPDX-License-Identifier: GPL-3.0-or-later
//
// The picture of a render: pitch of both oscillators, their levels, and the levels of input and
// output, above each other over one time axis.

#pragma once

#include "tools/brolt-host/RenderHistory.h"
#include "tools/brolt-host/RenderPlan.h"

#include <filesystem>
#include <string>

struct PlotCaption {
    std::string title;
    std::string details;
};

/// Which file, and how it was rendered. [message thread]
PlotCaption plotCaption(const RenderPlan& plan, const RenderFiles& files, int channels,
                        int sampleRate);

/// Writes a PNG file of 1600 x 1000 pixels to `file` as it stands. Throws HostError when it cannot
/// be written. [message thread]
void drawRenderPlot(const std::filesystem::path& file, const RenderHistory& history,
                    const PlotCaption& caption);
