// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/ParameterWidgets.h"

#include "widgets/base/QMWidget.h"

#include <utility>

void ParameterWidgets::add(std::int32_t index, QMWidget& widget, std::uint32_t slot) {
    places.emplace(index, Place{&widget, slot});
}

void ParameterWidgets::changed(std::int32_t index, const Refresh& refresh) {
    const auto [first, last] = places.equal_range(index);
    for (auto next = first; next != last; ++next) {
        const Place& place = next->second;
        if (place.widget->isTouched(place.slot))
            missed.insert(place);
        else
            refreshDeferred(place, refresh);
    }
    if (!batchRuns)
        flush();
}

void ParameterWidgets::endBatch() {
    batchRuns = false;
    flush();
}

void ParameterWidgets::released(const Place& place, const Refresh& refresh) {
    if (!missed.contains(place))
        return;
    refreshDeferred(place, refresh);
    if (!batchRuns)
        flush();
}

void ParameterWidgets::refreshDeferred(const Place& place, const Refresh& refresh) {
    missed.erase(place);
    place.widget->setDeferUpdates(true);
    pendingRefresh.insert(place.widget);
    refresh(place);
}

void ParameterWidgets::flush() {
    for (QMWidget* const widget : std::exchange(pendingRefresh, {}))
        widget->setDeferUpdates(false);
}
