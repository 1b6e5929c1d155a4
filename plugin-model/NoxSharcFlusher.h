// SPDX-License-Identifier: GPL-3.0-or-later
// Delivers the SHARC packet set to a remote host. That set is generated apart from the ordinary
// one, and every packet of it goes the way of coefficients, whatever its kind.
#pragma once

#include "plugin-model/QMParameterValuesCoefficientFlusher.h"

class INoxPlugIn;

class NoxSharcFlusher : public QMParameterValuesCoefficientFlusher {
public:
    /// The instance may be null or without a host; then nothing is sent.
    explicit NoxSharcFlusher(INoxPlugIn* instance)
        : plugIn(instance) {}

    void flush(QM::QMParameterValues& values) override;
    [[nodiscard]] std::uint32_t hostStatus() const override;

private:
    INoxPlugIn* plugIn;
};
