// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's parameter controller: passes gestures and values on to the GUI holder.
// [message thread]
#pragma once

#include "widgets/base/IQMParameterController.h"

class QMShell_GUI;

class QMShellParameterController final : public IQMParameterController {
public:
    /// The holder must outlive it.
    explicit QMShellParameterController(QMShell_GUI& holder)
        : gui(holder) {}

    void updateCoefficients() override;

    void setFlag(std::uint8_t value) override { flag_ = value; }

    [[nodiscard]] std::uint8_t flag() const override { return flag_; }

    bool handleParameterMouseDown(FourCharCode id, const juce::ModifierKeys& modifiers) override;
    void setParameterValue(FourCharCode id, double plain) override;
    [[nodiscard]] float parameterValue(FourCharCode id) const override;
    void beginParameterGesture(FourCharCode id) override;
    void endParameterGesture(FourCharCode id) override;

private:
    QMShell_GUI& gui;
    std::uint8_t flag_ = 0;
};
