// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/TwinRenderer.h"

#include "tools/brolt-host/HostError.h"

#include <array>
#include <cstring>
#include <utility>

TwinRenderer::TwinRenderer(std::unique_ptr<Renderer> renderer, int channels, double sampleRate,
                           const RenderPlan& plan)
    : heard(std::move(renderer))
    , shown(channels, sampleRate, plan)
    , shownOutput(channels, plan.blockSize) {}

void TwinRenderer::setParameter(std::int32_t index, double value) {
    heard->setParameter(index, value);
    shown.setParameter(index, value);
}

void TwinRenderer::process(float** inputs, float** outputs, std::int32_t frames) {
    std::array<float*, 2> own{};
    for (int c = 0; c < shownOutput.channelCount(); ++c)
        own[static_cast<std::size_t>(c)] = shownOutput.channel(c);
    // First: an output may be its own input.
    shown.process(inputs, own.data(), frames);
    heard->process(inputs, outputs, frames);
    for (int c = 0; c < shownOutput.channelCount(); ++c) {
        const auto bytes = static_cast<std::size_t>(frames) * sizeof(float);
        if (std::memcmp(outputs[c], shownOutput.channel(c), bytes) != 0) {
            throw HostError("the plug-in's audio is not that of the plug-in model, so that nothing "
                            "can be shown of its processor; is --plugin another version?");
        }
    }
}
