// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/undo/QMSetPluginParameterCommand.h"

#include "plugin-model/IQMParameterValues.h"

#include <array>

namespace QM {

QMSetPluginParameterCommand::QMSetPluginParameterCommand(IQMParameterValues& values,
                                                         std::int32_t parameterIndex,
                                                         double plainValue)
    : ZulCommand(&values)
    , index(parameterIndex)
    , value(plainValue) {}

void QMSetPluginParameterCommand::execute(ZulUndoManager&) {
    target()->replayParameterValue(index, value);
}

std::string QMSetPluginParameterCommand::description() const {
    constexpr std::size_t longestName = 128;
    std::array<char, longestName + 1> name{};
    target()->copyName(index, name.data(), name.size());
    return std::string("Set ") + name.data();
}

void QMSetPluginParameterCommand::print() const {
    std::fprintf(stderr, "%32s [%5d] Value: %f\n", description().c_str(), index, value);
}

} // namespace QM
