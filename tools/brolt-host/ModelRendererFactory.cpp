// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ModelRendererFactory.h"

#include "tools/brolt-host/ModelRenderer.h"

std::unique_ptr<Renderer> ModelRendererFactory::makeRenderer(int channels, double sampleRate,
                                                             const RenderPlan& plan) {
    return std::make_unique<ModelRenderer>(channels, sampleRate, plan);
}
