// SPDX-License-Identifier: GPL-3.0-or-later
// The target behind a control that is bound to parameters of the plug-in: what the control writes,
// and what is notified to it, goes to the plug-in UI. It belongs to the centre it is registered
// with.
#pragma once

#include "widgets/notifications/QMGenericParameterTarget.h"
#include "widgets/notifications/QMNotificationTarget.h"

class IQMPlugInUIParameters;

class PluginUIParameterTarget : public QMNotificationTarget, public QMGenericParameterTarget {
public:
    /// Without a centre it has nobody, and deletes itself. [message thread]
    void setNotificationCenter(QMNotificationCenter* newCenter) override;

    void notify(QMNotificationID) override {}

    /// Number 0: a value for a parameter. [message thread]
    void notify(QMNotificationID id, const QMNotificationArguments& arguments) override;

    /// Plain units. [message thread]
    void setValue(std::int32_t index, double value);

    [[nodiscard]] double parameterValue(FourCharCode id) const override;
    void setParameterValue(FourCharCode id, double value) override;

protected:
    /// The UI must outlive it.
    explicit PluginUIParameterTarget(IQMPlugInUIParameters& plugInUI)
        : ui(plugInUI) {}

private:
    IQMPlugInUIParameters& ui;
};
