// SPDX-License-Identifier: GPL-3.0-or-later
// Who wants to hear of changes to one values object. Listeners run on the thread that makes the
// change, inside it, before the change is flushed.
#pragma once

#include <cstdint>

namespace QM {

class IQMParameterValues;

class IQMParameterValuesListener {
public:
    virtual ~IQMParameterValuesListener() = default;

    /// A parameter was set; value is the plain value now in force. [thread of the change]
    virtual void parameterValueSet(IQMParameterValues& values, std::int32_t index,
                                   double value) = 0;

    /// The first hold of a parameter began. [thread of the gesture]
    virtual void touchStarted(IQMParameterValues&, std::int32_t /*index*/) {}

    /// The last hold of a parameter ended. [thread of the gesture]
    virtual void touchEnded(IQMParameterValues&, std::int32_t /*index*/) {}
};

} // namespace QM
