// SPDX-License-Identifier: GPL-3.0-or-later
//
// Renderers that drive the VST3 bundle, which is loaded once for all of them.

#pragma once

#include "tools/brolt-host/RendererFactory.h"
#include "tools/brolt-host/vst3/Vst3Module.h"

class Vst3RendererFactory : public RendererFactory {
public:
    /// Throws HostError when the bundle cannot be loaded. [message thread]
    explicit Vst3RendererFactory(const PlugInOptions& options);

    std::unique_ptr<Renderer> makeRenderer(int channels, double sampleRate,
                                           const RenderPlan& plan) override;

private:
    Vst3Module module;
    Vst3Mode mode;
};
