// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/OscillatorGains.h"

#include "brolt/model/QMBrolt_ParameterTable.h"
#include "tools/brolt-host/Decibels.h"

namespace {

double valueOf(const Renderer& renderer, FourCharCode id) {
    const auto parameters = QMBrolt_parameters();
    for (std::size_t i = 0; i < parameters.size(); ++i) {
        if (parameters[i].id == id)
            return renderer.parameter(static_cast<std::int32_t>(i));
    }
    return 0.0;
}

double gainOf(const Renderer& renderer, FourCharCode enable, FourCharCode mixGain) {
    return valueOf(renderer, enable) == 0.0 ? 0.0 : linearFromDecibels(valueOf(renderer, mixGain));
}

} // namespace

std::array<double, 2> oscillatorGains(const Renderer& renderer) {
    return {gainOf(renderer, fourCharCode("osc1"), fourCharCode("mgan")),
            gainOf(renderer, fourCharCode("osc2"), fourCharCode("dmgn"))};
}
