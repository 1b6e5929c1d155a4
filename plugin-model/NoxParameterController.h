// SPDX-License-Identifier: GPL-3.0-or-later
// What drives one parameter of one instance from outside the editor and the host. It is made on
// request and lives as long as its instance. An event source can be given to it; what a source's
// events do is the business of the target, which is set by whoever can bring them to the message
// thread. [message thread] but for handleEvent
#pragma once

#include "plugin-model/QMGenericEventSource.h"

#include <cstdint>
#include <memory>
#include <utility>

class INoxPlugIn;

class NoxParameterController {
public:
    NoxParameterController(INoxPlugIn& controlledPlugIn, std::int32_t parameterIndex)
        : plugIn_(controlledPlugIn)
        , index_(parameterIndex) {}

    [[nodiscard]] INoxPlugIn& plugIn() const { return plugIn_; }

    [[nodiscard]] std::int32_t index() const { return index_; }

    /// Null when no source drives the parameter.
    [[nodiscard]] QMGenericEventSource* eventSource() const { return source.get(); }

    /// Destroys the previous source.
    void setEventSource(std::unique_ptr<QMGenericEventSource> newSource) {
        source = std::move(newSource);
    }

    void setEventTarget(QMGenericEventSource::EventListener newTarget) {
        target = std::move(newTarget);
    }

    /// Passes an event on to the target; without one it is dropped. [the source's thread]
    void handleEvent(QMGenericEventSource::EventType type, double value) const {
        if (target)
            target(type, value);
    }

private:
    INoxPlugIn& plugIn_;
    std::int32_t index_;
    // Declared before the source, whose thread may still be in it when the source is destroyed.
    QMGenericEventSource::EventListener target;
    std::unique_ptr<QMGenericEventSource> source;
};
