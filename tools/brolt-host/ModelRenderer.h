// SPDX-License-Identifier: GPL-3.0-or-later
//
// Drives an instance through the plug-in model itself: no plug-in interface in between, so this is
// the plainest host there can be.

#pragma once

#include "QMShell/hosting/QMShellPlugInProcessingHost.h"
#include "tools/brolt-host/ProcessorInsight.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/RenderPlan.h"
#include "tools/brolt-host/Renderer.h"

#include <memory>

class QMBrolt_PlugIn;

class ModelRenderer : public Renderer, public ProcessorInsight {
public:
    /// An instance for 1 or 2 channels with the plan's records applied and settings made. That is
    /// done before the instance gets its host and so its way to the processor: it then begins with
    /// one single coefficient record, and the first block already works with it. The record is in
    /// force and not pending, as after the reset that plug-in interfaces make at activation, so
    /// that changes for the first block do not queue up behind it.
    ModelRenderer(int channels, double sampleRate, const RenderPlan& plan);

    ~ModelRenderer() override;

    void setParameter(std::int32_t index, double value) override;
    [[nodiscard]] double parameter(std::int32_t index) const override;
    void process(float** inputs, float** outputs, std::int32_t frames) override;

    [[nodiscard]] ProcessorInsight* insight() override { return this; }

    [[nodiscard]] const Coefficients* recordInUse() const override;
    OscillatorReading readOscillators() override;

private:
    ProductModel product;
    QMShellPlugInProcessingHost host;
    std::unique_ptr<INoxPlugIn> instance;
    const QMBrolt_PlugIn* brolt;
    int channelCount;
};
