// SPDX-License-Identifier: GPL-3.0-or-later
// Puts one parameter back to the value it had before a gesture.
#pragma once

#include "plugin-model/undo/ZulCommand.h"

#include <cstdint>

namespace QM {

class QMSetPluginParameterCommand : public ZulCommand {
public:
    /// The value is plain and the one before the edit.
    QMSetPluginParameterCommand(IQMParameterValues& values, std::int32_t parameterIndex,
                                double plainValue);

    void execute(ZulUndoManager& manager) override;
    /// "Set " and the parameter's name.
    [[nodiscard]] std::string description() const override;
    void print() const override;

private:
    std::int32_t index;
    double value;
};

} // namespace QM
