// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3RendererFactory.h"

#include "tools/brolt-host/vst3/Vst3Renderer.h"

Vst3RendererFactory::Vst3RendererFactory(const PlugInOptions& options)
    : module(options.bundle.value_or(Vst3Module::standardBundle()))
    , mode(options.mode) {}

std::unique_ptr<Renderer> Vst3RendererFactory::makeRenderer(int channels, double sampleRate,
                                                            const RenderPlan& plan) {
    return std::make_unique<Vst3Renderer>(module.effectClass(), module.messages(), mode, channels,
                                          sampleRate, plan);
}
