// SPDX-License-Identifier: GPL-3.0-or-later
//
// A renderer whose form shows nothing of the processor, with a view into it all the same: the
// plug-in model does the same beside it and is looked at instead. It counts as a view of the other
// because their audio is compared, bit by bit.

#pragma once

#include "tools/brolt-host/ChannelLayout.h"
#include "tools/brolt-host/ModelRenderer.h"

#include <memory>

class TwinRenderer : public Renderer {
public:
    /// The plan must be the one that the renderer was made for.
    TwinRenderer(std::unique_ptr<Renderer> renderer, int channels, double sampleRate,
                 const RenderPlan& plan);

    void setParameter(std::int32_t index, double value) override;

    [[nodiscard]] double parameter(std::int32_t index) const override {
        return heard->parameter(index);
    }

    /// Throws HostError when the two differ.
    void process(float** inputs, float** outputs, std::int32_t frames) override;

    void betweenBlocks() override { heard->betweenBlocks(); }

    [[nodiscard]] ProcessorInsight* insight() override { return shown.insight(); }

private:
    std::unique_ptr<Renderer> heard;
    ModelRenderer shown;
    ChannelBuffers shownOutput;
};
