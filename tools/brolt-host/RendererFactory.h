// SPDX-License-Identifier: GPL-3.0-or-later
//
// Makes the renderers of a run, one a file. What they share (a loaded library) lives here.

#pragma once

#include "tools/brolt-host/PlugInOptions.h"
#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/Renderer.h"

#include <memory>

class RendererFactory {
public:
    RendererFactory() = default;
    virtual ~RendererFactory() = default;
    RendererFactory(const RendererFactory&) = delete;
    RendererFactory& operator=(const RendererFactory&) = delete;

    /// A renderer for 1 or 2 channels with the plan's records applied and settings made; the first
    /// block works with them. The factory must outlive it. Throws HostError when the plug-in
    /// refuses. [message thread]
    virtual std::unique_ptr<Renderer> makeRenderer(int channels, double sampleRate,
                                                   const RenderPlan& plan) = 0;
};

/// The factory of the form that the options say. Throws HostError when there is no plug-in to load.
/// [message thread]
std::unique_ptr<RendererFactory> makeRendererFactory(const PlugInOptions& options);
