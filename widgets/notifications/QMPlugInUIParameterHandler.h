// SPDX-License-Identifier: GPL-3.0-or-later
// Brings parameter changes from any thread to a plug-in UI on the message thread.
//
// How it crosses the threads. A change made on the message thread goes straight on. One made
// elsewhere is kept in a map, the latest value of each parameter, under one lock; a timer of 30 ms,
// started by the first of them, hands the map to the UI as one batch. Automation at audio rate thus
// costs the message queue nothing. The UI is called with the lock held, so that whoever changes
// parameters meanwhile waits, and the next batch begins where this one ended.
#pragma once

#include "plugin-model/NoxParameterHandler.h"
#include "widgets/notifications/IQMPlugInUIParameters.h"

#include <juce_events/juce_events.h>

#include <map>
#include <mutex>

class QMPlugInUIParameterHandler final : public NoxParameterHandler, private juce::Timer {
public:
    /// Listens to an instance on behalf of a UI, which must outlive it. [message thread]
    QMPlugInUIParameterHandler(const INoxPlugIn* plugInToHear, IQMPlugInUIParameters& plugInUI);
    /// What was not delivered yet is dropped. To be taken from its environment before.
    /// [message thread]
    ~QMPlugInUIParameterHandler() override;

    /// [any thread but audio]
    void parameterChanged(std::int32_t index, double value, std::uint8_t flag) override;
    /// [any thread but audio]
    void parametersChanged(std::int32_t count, const std::int32_t* indices, const double* values,
                           std::uint8_t flag) override;

private:
    void keep(std::int32_t count, const std::int32_t* indices, const double* values);
    void timerCallback() override;

    IQMPlugInUIParameters& ui;
    std::mutex lock;
    std::map<std::int32_t, double> pendingValues;
};
