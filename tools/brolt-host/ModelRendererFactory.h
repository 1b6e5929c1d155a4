// SPDX-License-Identifier: GPL-3.0-or-later
//
// Renderers that drive the plug-in model: nothing has to be loaded for them.

#pragma once

#include "tools/brolt-host/RendererFactory.h"

class ModelRendererFactory : public RendererFactory {
public:
    std::unique_ptr<Renderer> makeRenderer(int channels, double sampleRate,
                                           const RenderPlan& plan) override;
};
