// SPDX-License-Identifier: GPL-3.0-or-later
// Which widgets show which parameters, and how a change reaches them: whoever is held by the user
// keeps what it shows until it is let go, the others take the value first and draw afterwards, once
// for all changes of a batch. [message thread]
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <set>

class QMWidget;

class ParameterWidgets {
public:
    struct Place {
        QMWidget* widget;
        std::uint32_t slot;

        friend bool operator<(const Place& a, const Place& b) {
            return std::less<>()(a.widget, b.widget) || (a.widget == b.widget && a.slot < b.slot);
        }
    };

    using Map = std::multimap<std::int32_t, Place>; ///< from the parameter's index

    /// Lets a slot take its parameter's value.
    using Refresh = std::function<void(const Place&)>;

    void add(std::int32_t index, QMWidget& widget, std::uint32_t slot);

    [[nodiscard]] const Map& widgetsByParameter() const { return places; }

    /// A parameter has changed.
    void changed(std::int32_t index, const Refresh& refresh);

    /// Between these two nothing is drawn. Batches do not nest.
    void beginBatch() { batchRuns = true; }

    void endBatch();

    /// The user lets go of a slot: if its parameter changed meanwhile, it catches up.
    void released(const Place& place, const Refresh& refresh);

private:
    void refreshDeferred(const Place& place, const Refresh& refresh);
    void flush();

    Map places;
    std::set<QMWidget*> pendingRefresh; ///< in the deferred mode
    std::set<Place> missed;             ///< held when their parameter changed
    bool batchRuns = false;
};
