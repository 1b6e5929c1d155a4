// SPDX-License-Identifier: GPL-3.0-or-later
// Delivers packets to a remote DSP through the instance's processing host.
#pragma once

#include "plugin-model/QMParameterValuesCoefficientFlusher.h"

class INoxPlugIn;

class DspFlusher : public QMParameterValuesCoefficientFlusher {
public:
    /// The instance may be null or without a host; then nothing is sent.
    explicit DspFlusher(INoxPlugIn* instance)
        : plugIn(instance) {}

    void flush(QM::QMParameterValues& values) override;
    [[nodiscard]] std::uint32_t hostStatus() const override;

private:
    INoxPlugIn* plugIn;
};
