// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/notifications/QMPlugInUIParameterHandler.h"

#include <vector>

namespace {

constexpr int deliveryMs = 30;

bool isMessageThread() {
    const juce::MessageManager* const messages = juce::MessageManager::getInstanceWithoutCreating();
    return messages != nullptr && messages->isThisTheMessageThread();
}

} // namespace

QMPlugInUIParameterHandler::QMPlugInUIParameterHandler(const INoxPlugIn* plugInToHear,
                                                       IQMPlugInUIParameters& plugInUI,
                                                       std::recursive_mutex* controlLock)
    : NoxParameterHandler(plugInToHear)
    , ui(plugInUI)
    , control(controlLock) {}

QMPlugInUIParameterHandler::~QMPlugInUIParameterHandler() {
    stopTimer();
}

void QMPlugInUIParameterHandler::parameterChanged(std::int32_t index, double value, std::uint8_t) {
    if (isMessageThread())
        ui.parameterChanged(index, value);
    else
        keep(1, &index, &value);
}

void QMPlugInUIParameterHandler::parametersChanged(std::int32_t count, const std::int32_t* indices,
                                                   const double* values, std::uint8_t) {
    if (isMessageThread())
        ui.parametersChanged(count, indices, values);
    else
        keep(count, indices, values);
}

void QMPlugInUIParameterHandler::keep(std::int32_t count, const std::int32_t* indices,
                                      const double* values) {
    const std::scoped_lock guard(lock);
    for (std::int32_t i = 0; i < count; ++i)
        pendingValues[indices[i]] = values[i];
    if (!isTimerRunning())
        startTimer(deliveryMs);
}

void QMPlugInUIParameterHandler::timerCallback() {
    if (control == nullptr) {
        deliver();
        return;
    }
    const std::scoped_lock guard(*control);
    deliver();
}

void QMPlugInUIParameterHandler::deliver() {
    const std::scoped_lock guard(lock);
    if (!pendingValues.empty()) {
        std::vector<std::int32_t> indices;
        std::vector<double> values;
        for (const auto& [index, value] : pendingValues) {
            indices.push_back(index);
            values.push_back(value);
        }
        ui.parametersChanged(static_cast<std::int32_t>(indices.size()), indices.data(),
                             values.data());
        pendingValues.clear();
    }
    stopTimer();
}
