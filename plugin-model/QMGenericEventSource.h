// SPDX-License-Identifier: GPL-3.0-or-later
// Something outside editor and host that drives a parameter: an event of a MIDI controller, once
// sources of that kind exist. It is made of a mapping document and owned by the controller of the
// parameter that it drives.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

class QMGenericEventSource {
public:
    /// What a source asks the parameter to do with the event's value.
    enum class EventType : std::int32_t {
        set = 0,       ///< the value is the new plain value
        increment = 1, ///< add the value in the normalised domain
        decrement = 2, ///< subtract it there
        toggle = 3,    ///< 1 if the parameter is 0, otherwise 0
        trigger = 4,   ///< fire with the value
    };

    using EventListener = std::function<void(EventType type, double value)>;

    virtual ~QMGenericEventSource() = default;

    /// Who hears of events, and a name for it in the log. The listener is called on the source's
    /// own thread. [message thread]
    virtual void setEventListener(EventListener listener, std::string name) = 0;
};
