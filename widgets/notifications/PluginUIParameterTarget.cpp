// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notifications/PluginUIParameterTarget.h"

#include "widgets/notifications/IQMPlugInUIParameters.h"

void PluginUIParameterTarget::setNotificationCenter(QMNotificationCenter* newCenter) {
    QMNotificationTarget::setNotificationCenter(newCenter);
    if (newCenter == nullptr)
        delete this;
}

void PluginUIParameterTarget::notify(QMNotificationID id,
                                     const QMNotificationArguments& arguments) {
    constexpr QMNotificationID valueOfParameter = 0;
    if (id == valueOfParameter)
        setValue(arguments.index, arguments.value);
}

void PluginUIParameterTarget::setValue(std::int32_t index, double value) {
    ui.setParameterFromUI(index, value);
}

double PluginUIParameterTarget::parameterValue(FourCharCode id) const {
    return ui.parameterValue(ui.parameterIndex(id));
}

void PluginUIParameterTarget::setParameterValue(FourCharCode id, double value) {
    const std::int32_t index = ui.parameterIndex(id);
    if (index >= 0)
        setValue(index, value);
}
