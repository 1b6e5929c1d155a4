// SPDX-License-Identifier: GPL-3.0-or-later
// Writes down what a widget asks of its target.
#pragma once

#include "widgets/notifications/QMGenericParameterTarget.h"

#include <string>
#include <utility>

class RecordingTarget final : public QMGenericParameterTarget {
public:
    static constexpr FourCharCode parameter = fourCharCode("test");

    double parameterValue(FourCharCode) const override { return 0.0; }

    void setParameterValue(FourCharCode, double value) override {
        notes += std::to_string(static_cast<int>(value)) + " ";
    }

    void beginTouch(FourCharCode) override { notes += "begin "; }

    void endTouch(FourCharCode) override { notes += "end "; }

    bool takesClick(FourCharCode) override { return wantsClicks; }

    /// What has been written down since the last time.
    std::string takeNotes() { return std::exchange(notes, {}); }

    bool wantsClicks = false;

private:
    std::string notes;
};
