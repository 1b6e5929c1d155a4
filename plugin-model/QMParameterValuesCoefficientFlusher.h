// SPDX-License-Identifier: GPL-3.0-or-later
// Takes a values object's coefficient packets to wherever the instance is processed. Which flusher
// an instance gets depends on the runtime architecture of its processing host.
#pragma once

#include <cstdint>

namespace QM {
class QMParameterValues;
}

class QMParameterValuesCoefficientFlusher {
public:
    virtual ~QMParameterValuesCoefficientFlusher() = default;

    /// Generates the packets for the values in force and delivers them in order.
    /// [thread of the change]
    virtual void flush(QM::QMParameterValues& values) = 0;
    /// The processing host's status word; 0 without an instance or a host. [any thread]
    [[nodiscard]] virtual std::uint32_t hostStatus() const = 0;
};
