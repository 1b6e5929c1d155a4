// SPDX-License-Identifier: GPL-3.0-or-later
// Delivers packets in process: coefficient records to the instance's queue, messages to its message
// entry.
#pragma once

#include "plugin-model/QMParameterValuesCoefficientFlusher.h"

class INoxPlugIn;

class QMShellFlusher : public QMParameterValuesCoefficientFlusher {
public:
    /// The instance may be null; then nothing is delivered.
    explicit QMShellFlusher(INoxPlugIn* instance)
        : plugIn(instance) {}

    void flush(QM::QMParameterValues& values) override;
    [[nodiscard]] std::uint32_t hostStatus() const override;

private:
    INoxPlugIn* plugIn;
};
