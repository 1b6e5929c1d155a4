// SPDX-License-Identifier: GPL-3.0-or-later
// Brackets a burst of changes for as long as it lives, so that an exception on the way cannot leave
// the values object mute.
#pragma once

#include "plugin-model/IQMParameterValues.h"

namespace QM {

class AccumulateBracket {
public:
    explicit AccumulateBracket(IQMParameterValues& bracketedValues)
        : values(bracketedValues) {
        values.beginAccumulate();
    }

    /// Closes the bracket; the outermost one flushes. What the flush throws reaches the caller.
    void close() {
        open = false;
        values.endAccumulate();
    }

    ~AccumulateBracket() {
        if (!open)
            return;
        try {
            values.endAccumulate();
        } catch (...) {
            // Unwinding already: the first exception is the one to tell.
        }
    }

    AccumulateBracket(const AccumulateBracket&) = delete;
    AccumulateBracket& operator=(const AccumulateBracket&) = delete;

private:
    IQMParameterValues& values;
    bool open = true;
};

} // namespace QM
