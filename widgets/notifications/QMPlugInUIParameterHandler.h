// SPDX-License-Identifier: GPL-3.0-or-later
// Brings parameter changes from any thread to a plug-in UI on the message thread.
//
// How it crosses the threads. A change made on the message thread goes straight on. One made
// elsewhere is kept in a map, the latest value of each parameter, under one lock; a timer of 30 ms,
// started by the first of them, hands the map to the UI as one batch. Automation at audio rate thus
// costs the message queue nothing. The UI is called with the lock held, so that whoever changes
// parameters meanwhile waits, and the next batch begins where this one ended. Since the UI will ask
// the plug-in, and those who change parameters hold the plug-in's control lock while they tell us,
// that lock is taken first.
#pragma once

#include "plugin-model/NoxParameterHandler.h"
#include "widgets/notifications/IQMPlugInUIParameters.h"

#include <juce_events/juce_events.h>

#include <map>
#include <mutex>

class QMPlugInUIParameterHandler final : public NoxParameterHandler, private juce::Timer {
public:
    /// Listens to an instance on behalf of a UI, which must outlive it. The control lock is that of
    /// the instance's environment; null where only one thread uses the instance. [message thread]
    QMPlugInUIParameterHandler(const INoxPlugIn* plugInToHear, IQMPlugInUIParameters& plugInUI,
                               std::recursive_mutex* controlLock = nullptr);
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

    void deliver();

    IQMPlugInUIParameters& ui;
    std::recursive_mutex* const control;
    std::mutex lock;
    std::map<std::int32_t, double> pendingValues;
};
