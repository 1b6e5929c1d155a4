// SPDX-License-Identifier: GPL-3.0-or-later
// The way of parameters between the widgets and the plug-in instance.
#include "plugin-model/INoxPlugIn.h"
#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/IQMParameterController.h"
#include "widgets/base/QMWidget.h"
#include "widgets/notifications/PluginUIParameterNT.h"
#include "widgets/ui/IQMPlugInUIHost.h"
#include "widgets/ui/QMPlugInUI.h"

#include <array>
#include <cmath>

namespace {

constexpr std::size_t longestText = 256;

/// What the answer of a query that fills a buffer is; empty when it leaves the buffer as it is.
template <typename Query>
std::string textOf(Query query) {
    std::array<char, longestText> buffer{};
    query(buffer.data(), buffer.size());
    return buffer.data();
}

/// The answer of the instance, or a neutral one.
template <typename Answer, typename Query>
Answer ask(const QMPlugInAccess& access, Answer neutral, Query query) {
    const QMPlugInAccess::Hold plugIn = access.hold();
    return plugIn ? query(*plugIn) : neutral;
}

} // namespace

// Questions.

bool QMPlugInUI::belongsTo(const INoxPlugIn* plugIn) const {
    return instanceAccess.isOf(plugIn);
}

std::string QMPlugInUI::plugInName() const {
    return ask(instanceAccess, std::string(),
               [](const INoxPlugIn& plugIn) { return plugIn.displayName(); });
}

std::int32_t QMPlugInUI::parameterCount() const {
    return ask(instanceAccess, std::int32_t{0},
               [](const INoxPlugIn& plugIn) { return plugIn.parameterCount(); });
}

std::int32_t QMPlugInUI::parameterIndex(FourCharCode id) const {
    return ask(instanceAccess, std::int32_t{-1},
               [id](const INoxPlugIn& plugIn) { return plugIn.indexOfID(id); });
}

FourCharCode QMPlugInUI::parameterID(std::int32_t index) const {
    return ask(instanceAccess, FourCharCode{0}, [index](const INoxPlugIn& plugIn) {
        const bool known = index >= 0 && index < plugIn.parameterCount();
        return known ? plugIn.idOfIndex(index) : FourCharCode{0};
    });
}

double QMPlugInUI::parameterValue(std::int32_t index) const {
    return ask(instanceAccess, 0.0,
               [index](const INoxPlugIn& plugIn) { return plugIn.parameterValue(index); });
}

std::string QMPlugInUI::parameterName(std::int32_t index) const {
    return ask(instanceAccess, std::string(), [index](const INoxPlugIn& plugIn) {
        return textOf(
            [&](char* buffer, std::size_t size) { plugIn.copyName(index, buffer, size); });
    });
}

std::string QMPlugInUI::parameterUnit(std::int32_t index) const {
    return ask(instanceAccess, std::string(), [index](const INoxPlugIn& plugIn) {
        return textOf(
            [&](char* buffer, std::size_t size) { plugIn.copyUnit(index, buffer, size); });
    });
}

std::string QMPlugInUI::parameterText(std::int32_t index, double value) const {
    return ask(instanceAccess, std::string(), [=](const INoxPlugIn& plugIn) {
        return textOf([&](char* buffer, std::size_t size) {
            plugIn.formatValueText(index, value, buffer, size);
        });
    });
}

double QMPlugInUI::parameterMinimum(std::int32_t index) const {
    return ask(instanceAccess, 0.0,
               [index](const INoxPlugIn& plugIn) { return plugIn.minimum(index); });
}

double QMPlugInUI::parameterMaximum(std::int32_t index) const {
    return ask(instanceAccess, 0.0,
               [index](const INoxPlugIn& plugIn) { return plugIn.maximum(index); });
}

double QMPlugInUI::parameterDefault(std::int32_t index) const {
    return ask(instanceAccess, 0.0,
               [index](const INoxPlugIn& plugIn) { return plugIn.defaultValue(index); });
}

std::int32_t QMPlugInUI::parameterAt(juce::Point<int> position) const {
    const juce::Component* found = const_cast<QMPlugInUI*>(this)->getComponentAt(position);
    for (; found != nullptr && found != this; found = found->getParentComponent()) {
        const auto* const widget = dynamic_cast<const QMWidget*>(found);
        if (widget != nullptr && widget->getParameterID(0) != QMWidget::noParameter)
            return parameterIndex(widget->getParameterID(0));
    }
    return -1;
}

// From the plug-in.

void QMPlugInUI::refresh(const ParameterWidgets::Place& place, double noticed) const {
    // The plug-in may be further than the notice; when it is gone, the notice is what there is.
    const QMPlugInAccess::Hold plugIn = instanceAccess.hold();
    const double value = plugIn ? place.widget->readParameterValue(place.slot) : noticed;
    place.widget->setParameterValue(place.slot, value, false);
}

void QMPlugInUI::parameterChanged(std::int32_t index, double value) {
    if (host != nullptr)
        host->parameterChanged(index);
    widgetMap.changed(
        index, [this, value](const ParameterWidgets::Place& place) { refresh(place, value); });
}

void QMPlugInUI::parametersChanged(std::int32_t count, const std::int32_t* indices,
                                   const double* values) {
    widgetMap.beginBatch();
    for (std::int32_t i = 0; i < count; ++i)
        parameterChanged(indices[i], values[i]);
    widgetMap.endBatch();
}

// To the plug-in.

std::optional<double> QMPlugInUI::acceptedValue(std::int32_t index, double value) {
    if (index < 0 || index >= parameterCount() || !std::isfinite(value))
        return {};
    return juce::jlimit(parameterMinimum(index), parameterMaximum(index), value);
}

void QMPlugInUI::setParameterFromUI(std::int32_t index, double value) {
    const juce::ScopedValueSetter<bool> mark(writing, true);
    const FourCharCode idForHost = parameterID(index);
    const std::optional<double> accepted = acceptedValue(index, value);
    if (!accepted)
        return;
    if (IQMParameterController* const hostSide = controller())
        hostSide->setParameterValue(idForHost, *accepted);
    if (const QMPlugInAccess::Hold plugIn = instanceAccess.hold())
        plugIn->setParameterValue(index, *accepted);
    // Without an environment nobody tells of the change.
    if (instanceAccess.environment() == nullptr)
        parameterChanged(index, *accepted);
    parameterChangedFromUI(index, *accepted);
}

// Widgets.

void QMPlugInUI::connectWidget(QMWidget& widget, const Slots& slots) {
    if (slots.empty())
        return;
    PluginUIParameterTarget* target = nullptr; // the centre's, once it is registered
    if (slots.size() == 1)
        target = new PluginUIParameterNT(*this, slots.begin()->second);
    else
        target = new PluginUIParameterMultipleNT(*this, slots);
    center.registerTarget(*target);
    widget.addParameterTarget(target);
    widget.setParameterController(controller());
    widget.setUseController(true);
    widget.setGestureListener(
        [this, slots](std::uint32_t slot, QMWidget::GesturePhase phase, QMWidget& touched) {
            if (const auto found = slots.find(slot); found != slots.end())
                gestureChanged({&touched, slot}, static_cast<std::int32_t>(found->second),
                               phase == QMWidget::GesturePhase::begin);
        });
    for (const auto& [slot, index] : slots)
        widgetMap.add(static_cast<std::int32_t>(index), widget, slot);
}

void QMPlugInUI::addGenericTarget(QMWidget& widget, std::int32_t index) {
    widget.addParameterTarget(genericTarget(index));
}

void QMPlugInUI::gestureChanged(const ParameterWidgets::Place& place, std::int32_t index,
                                bool begins) {
    if (begins) {
        gestures.begin(index, place.widget->getParameterID(place.slot),
                       place.widget->getParameterController() != nullptr);
        return;
    }
    gestures.end(index);
    const QMPlugInAccess::Hold plugIn = instanceAccess.hold();
    if (plugIn)
        widgetMap.released(place,
                           [this](const ParameterWidgets::Place& late) { refresh(late, 0.0); });
}

bool QMPlugInUI::bindMeter(IQMDisplayWidget& display, std::uint32_t slot, FourCharCode displayID) {
    const QMPlugInAccess::Hold plugIn = instanceAccess.hold();
    const QM::IQMParameterSet* const set = plugIn ? plugIn->parameterSet() : nullptr;
    const std::int32_t meter = set == nullptr ? -1 : set->indexOfMeterID(displayID);
    if (meter < 0 || static_cast<std::size_t>(meter) >= meterRecords.size())
        return false;
    display.bindMeterRecord(slot, displayID, set->meterDescriptor(meter)->kind,
                            &meterRecords[static_cast<std::size_t>(meter)]);
    return true;
}
