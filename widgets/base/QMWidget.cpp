// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/base/QMWidget.h"

#include "widgets/base/IQMParameterController.h"

#include <algorithm>

namespace {

/// A slot's entry, or what a slot without one has.
double entryOf(const std::vector<double>& entries, std::uint32_t slot, double otherwise) {
    return slot < entries.size() ? entries[slot] : otherwise;
}

void setEntry(std::vector<double>& entries, std::uint32_t slot, double value, std::uint32_t count,
              double otherwise) {
    if (entries.size() < count)
        entries.resize(count, otherwise);
    if (slot < entries.size())
        entries[slot] = value;
}

constexpr double defaultOfDefault = 0.0;
constexpr double defaultMinimum = 0.0;
constexpr double defaultMaximum = 1.0;

} // namespace

QMWidget::QMWidget(std::uint32_t slotCount)
    : numParameterSlots(slotCount) {
    // The host keeps the keyboard when somebody merely clicks.
    setMouseClickGrabsKeyboardFocus(false);
}

QMWidget::~QMWidget() = default;

void QMWidget::setName(const juce::String& name) {
    if (name == getName())
        return;
    juce::Component::setName(name);
    setTitle(name); // what screen readers say
    repaint();
}

void QMWidget::matchSlotCount() {
    const std::uint32_t count = getNumParameterSlots();
    if (parameterSlots.size() == count)
        return;
    parameterSlots.assign(count, noParameter);
    slotFlags.assign(count, false);
    slotStates.assign(count, 0);
    slotOfParameter.clear();
}

void QMWidget::setParameter(std::uint32_t slot, FourCharCode parameterID) {
    matchSlotCount();
    if (slot >= parameterSlots.size())
        return;
    parameterSlots[slot] = parameterID;
    slotOfParameter[parameterID] = slot;
    highestBoundSlot = std::max(highestBoundSlot, slot + 1);
}

FourCharCode QMWidget::getParameterID(std::uint32_t slot) const {
    return slot < parameterSlots.size() ? parameterSlots[slot] : noParameter;
}

std::int32_t QMWidget::getSlotOfParameter(FourCharCode parameterID) const {
    const auto found = slotOfParameter.find(parameterID);
    return found == slotOfParameter.end() ? -1 : static_cast<std::int32_t>(found->second);
}

bool QMWidget::usesController(std::uint32_t slot) const {
    return parameterController != nullptr && useController && getParameterID(slot) != noParameter;
}

void QMWidget::setParameterValue(std::uint32_t slot, double value, bool notify) {
    const FourCharCode id = getParameterID(slot);
    if (!notify || id == noParameter)
        return;
    flushPendingOutput();
    if (usesController(slot))
        parameterController->setParameterValue(id, value);
    else if (QMGenericParameterTarget* const target = parameterTarget())
        target->setParameterValue(id, value);
}

double QMWidget::getParameterValue(std::uint32_t slot) const {
    const QMGenericParameterTarget* const target = parameterTarget();
    return target == nullptr ? 0.0 : target->parameterValue(getParameterID(slot));
}

void QMWidget::writeDisplayValue(std::uint32_t slot, double value, bool fromUser) {
    setParameterValue(slot, value, fromUser);
}

double QMWidget::getSlotDefault(std::uint32_t slot) const {
    return entryOf(slotDefaults, slot, defaultOfDefault);
}

double QMWidget::getSlotMinimum(std::uint32_t slot) const {
    return entryOf(slotMinimums, slot, defaultMinimum);
}

double QMWidget::getSlotMaximum(std::uint32_t slot) const {
    return entryOf(slotMaximums, slot, defaultMaximum);
}

void QMWidget::setSlotDefault(std::uint32_t slot, double value, bool) {
    setEntry(slotDefaults, slot, value, getNumParameterSlots(), defaultOfDefault);
}

void QMWidget::setSlotMinimum(std::uint32_t slot, double value, bool) {
    setEntry(slotMinimums, slot, value, getNumParameterSlots(), defaultMinimum);
}

void QMWidget::setSlotMaximum(std::uint32_t slot, double value, bool) {
    setEntry(slotMaximums, slot, value, getNumParameterSlots(), defaultMaximum);
}

void QMWidget::setSlotState(std::uint32_t slot, bool flag, std::uint32_t state) {
    matchSlotCount();
    if (slot >= slotStates.size())
        return;
    slotFlags[slot] = flag;
    slotStates[slot] = state;
    slotStateChanged();
}

bool QMWidget::getSlotFlag(std::uint32_t slot) const {
    return slot < slotFlags.size() && slotFlags[slot];
}

std::uint32_t QMWidget::getSlotState(std::uint32_t slot) const {
    return slot < slotStates.size() ? slotStates[slot] : 0;
}

void QMWidget::setDeferUpdates(bool flag) {
    const bool ends = deferUpdates && !flag;
    deferUpdates = flag;
    if (ends)
        flushDeferredUpdates();
}

void QMWidget::setWidgetEnabled(bool flag) {
    if (flag == isEnabled())
        return;
    setEnabled(flag);
    repaint();
}

juce::Colour QMWidget::getBaseColour() const {
    for (const juce::Component* above = getParentComponent(); above != nullptr;
         above = above->getParentComponent()) {
        if (const auto* const source = dynamic_cast<const QMColorSource*>(above))
            return source->getBaseColour();
    }
    return juce::Colour(208, 208, 208);
}

void QMWidget::setSelected(bool flag) {
    if (flag == selected)
        return;
    selected = flag;
    repaint();
}

void QMWidget::paint(juce::Graphics& g) {
    g.drawRect(getLocalArea(), 1);
}

bool QMWidget::hitTest(int x, int y) {
    return juce::Component::hitTest(x, y);
}
