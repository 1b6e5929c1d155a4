// SPDX-License-Identifier: GPL-3.0-or-later
// The product's parameter set: the framework's set over the product's tables.
#pragma once

#include "plugin-model/QMParameterSet.h"

namespace QM {

class QMBrolt_ParametersSet : public QMParameterSet {
public:
    /// 1 mono, 2 stereo. Accepts settings of the product.
    explicit QMBrolt_ParametersSet(std::int32_t typeIndex);

    [[nodiscard]] std::unique_ptr<QMParameterValues> createParameterValues() override;
};

} // namespace QM
