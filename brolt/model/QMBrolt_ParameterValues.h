// SPDX-License-Identifier: GPL-3.0-or-later
// The product's values: turn the fifteen plain values into one coefficient packet, and bracket
// every single change, so that a change flushes once and only after its listeners were told.
#pragma once

#include "plugin-model/QMParameterValues.h"

namespace QM {

class QMBrolt_ParameterValues : public QMParameterValues {
public:
    QMBrolt_ParameterValues(IQMParameterSet& parameterSet, double sampleRate,
                            FourCharCode manufacturerCode, FourCharCode productCode,
                            std::int32_t typeIndex);

    void setParameterValue(std::int32_t index, double value, QMParameterChanges* changes) override;
    /// Replaces the list's content by one coefficient packet with the next version.
    void generatePackets(PacketList& packets) override;

    [[nodiscard]] FourCharCode manufacturerCode() const override { return manufacturer; }

    [[nodiscard]] FourCharCode productCode() const override { return product; }

    /// 1 mono, 2 stereo.
    [[nodiscard]] std::int32_t typeIndex() const { return type; }

private:
    FourCharCode manufacturer;
    FourCharCode product;
    std::int32_t type;
};

} // namespace QM
