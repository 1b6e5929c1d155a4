// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/ModelRenderer.h"

#include "brolt/model/QMBrolt_PlugIn.h"
#include "tools/brolt-host/state/InstanceSettings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

ModelRenderer::ModelRenderer(int channels, double sampleRate, const RenderPlan& plan)
    : host(&product.environment())
    , channelCount(channels) {
    host.setSampleRate(&sampleRate);
    host.setBlockSize(plan.blockSize);
    instance = createInstance(product, channels, plan);
    brolt = dynamic_cast<const QMBrolt_PlugIn*>(instance.get());
    instance->createProcessingState();
    instance->setProcessingHost(&host);
    instance->discardPendingCoefficients();
}

ModelRenderer::~ModelRenderer() {
    instance->destroyProcessingState();
    instance->setProcessingHost(nullptr);
}

void ModelRenderer::setParameter(std::int32_t index, double value) {
    instance->setNormalisedValue(index, product.parameters().plainToNormalised(index, value));
}

double ModelRenderer::parameter(std::int32_t index) const {
    return instance->parameterValue(index);
}

void ModelRenderer::process(float** inputs, float** outputs, std::int32_t frames) {
    instance->process({frames, channelCount, 0, inputs}, {frames, channelCount, 0, outputs});
}

const Coefficients* ModelRenderer::recordInUse() const {
    return brolt->coefficientsInUse();
}

OscillatorReading ModelRenderer::readOscillators() {
    instance->updateMeters();
    // Behind the channels' records: cosine of the phase step and level, oscillator by oscillator.
    const NoxMeterRecord& record = *instance->meterRecord(channelCount);
    const auto frequency = [&](float cosine) {
        const double angle = std::acos(std::clamp(static_cast<double>(cosine), -1.0, 1.0));
        return angle / (2.0 * std::numbers::pi) * host.sampleRate();
    };
    return {{frequency(record.values[0]), frequency(record.values[2])},
            {record.values[1], record.values[3]}};
}
