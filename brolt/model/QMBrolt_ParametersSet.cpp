// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/QMBrolt_ParametersSet.h"

#include "brolt/model/QMBrolt_ParameterTable.h"
#include "brolt/model/QMBrolt_ParameterValues.h"
#include "brolt/model/QMBrolt_ProductCodes.h"

namespace QM {

QMBrolt_ParametersSet::QMBrolt_ParametersSet(std::int32_t typeIndex)
    : QMParameterSet(QMBrolt_parameters(), QMBrolt_parameterGroups(), QMBrolt_meters(typeIndex),
                     typeIndex) {
    addAcceptedPair(QMBrolt::manufacturerCode, QMBrolt::productCode);
}

std::unique_ptr<QMParameterValues> QMBrolt_ParametersSet::createParameterValues() {
    constexpr double sampleRate = 44100.0;
    return std::make_unique<QMBrolt_ParameterValues>(*this, sampleRate, QMBrolt::manufacturerCode,
                                                     QMBrolt::productCode, typeIndex());
}

} // namespace QM
