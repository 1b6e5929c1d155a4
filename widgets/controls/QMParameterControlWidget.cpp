// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMParameterControlWidget.h"

#include "widgets/controls/DisplayNumber.h"
#include "widgets/controls/QMEphemeralReadout.h"
#include "widgets/controls/QMParameterReadoutWidget.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double fineStep = 0.1;

double clampedPosition(double position) {
    return std::isnan(position) ? 0.0 : std::clamp(position, 0.0, 1.0);
}

} // namespace

QMParameterControlWidget::QMParameterControlWidget()
    : textTransformer(std::make_unique<QMParameterTextTransformer>()) {
    setCanTakeFocus(true);
}

QMParameterControlWidget::~QMParameterControlWidget() {
    ephemeralReadout.deleteAndZero();
    setReadout(nullptr);
}

// Value.

void QMParameterControlWidget::show(double position, double plain) {
    value = static_cast<float>(clampedPosition(position));
    tellReadouts(plain);
    if (isDeferringUpdates())
        return;
    flushDeferredUpdates();
}

void QMParameterControlWidget::flushDeferredUpdates() {
    if (value == shownValue)
        return;
    const float before = shownValue;
    shownValue = value;
    positionChanged(before);
    tellAccessibility();
}

void QMParameterControlWidget::tellReadouts(double plain) {
    if (QMWidget* const shown = readout())
        shown->setParameterValue(0, plain, false);
    if (QMEphemeralReadout* const floating = getEphemeralReadout())
        floating->showText(getDisplayText(), *this);
}

void QMParameterControlWidget::setValueFromUser(double normalised) {
    if (std::isnan(normalised))
        return;
    const auto position = static_cast<float>(clampedPosition(normalised));
    const double plain = taper().plainAt(position);
    show(position, plain);
    QMWidget::setParameterValue(0, plain, true);
}

void QMParameterControlWidget::nudge(double amount) {
    if (!std::isnan(amount))
        writeDisplayValue(0, taper().plainAt(clampedPosition(value + amount)), true);
}

void QMParameterControlWidget::resetToDefault() {
    writeAsGesture(0, defaultValue);
}

double QMParameterControlWidget::limited(double plain) const {
    const double low = std::min(rangeMinimum, rangeMaximum);
    const double high = std::max(rangeMinimum, rangeMaximum);
    return low <= high ? std::clamp(plain, low, high) : plain;
}

void QMParameterControlWidget::setParameterValue(std::uint32_t slot, double plain, bool notify) {
    if (slot != 0) {
        QMWidget::setParameterValue(slot, plain, notify);
        return;
    }
    if (!notify) {
        const double position = clampedPosition(taper().positionOf(plain));
        show(position, std::isnan(plain) ? taper().plainAt(position) : plain);
        return;
    }
    const double written = limited(plain);
    if (!std::isfinite(written))
        return;
    show(taper().positionOf(written), written);
    QMWidget::setParameterValue(slot, written, true);
}

double QMParameterControlWidget::getSlotValue(std::uint32_t slot) const {
    return slot == 0 ? taper().plainAt(value) : QMWidget::getSlotValue(slot);
}

// Range.

ControlTaper QMParameterControlWidget::taper() const {
    ControlTaper shape;
    shape.mode = taperMode;
    shape.minimum = rangeMinimum;
    shape.maximum = rangeMaximum;
    shape.factor = taperFactor;
    return shape;
}

double QMParameterControlWidget::getSlotDefault(std::uint32_t slot) const {
    return slot == 0 ? defaultValue : QMWidget::getSlotDefault(slot);
}

double QMParameterControlWidget::getSlotMinimum(std::uint32_t slot) const {
    return slot == 0 ? rangeMinimum : QMWidget::getSlotMinimum(slot);
}

double QMParameterControlWidget::getSlotMaximum(std::uint32_t slot) const {
    return slot == 0 ? rangeMaximum : QMWidget::getSlotMaximum(slot);
}

void QMParameterControlWidget::setSlotDefault(std::uint32_t slot, double plain, bool) {
    if (slot == 0)
        defaultValue = static_cast<float>(plain);
}

void QMParameterControlWidget::setSlotMinimum(std::uint32_t slot, double plain, bool) {
    if (slot == 0)
        rangeMinimum = static_cast<float>(plain);
}

void QMParameterControlWidget::setSlotMaximum(std::uint32_t slot, double plain, bool) {
    if (slot == 0)
        rangeMaximum = static_cast<float>(plain);
}

// Text and steps.

juce::String QMParameterControlWidget::getDisplayText() const {
    const double shown =
        roundedToResolution((getSlotValue(0) + displayOffset) * displayScale, displayResolution);
    return textTransformer->formatValue(shown, decimalsOfControl(displayResolution));
}

void QMParameterControlWidget::setDisplayScale(std::uint32_t slot, double scale, bool) {
    if (slot == 0)
        displayScale = scale;
}

void QMParameterControlWidget::setDisplayOffset(std::uint32_t slot, double offset, bool) {
    if (slot == 0)
        displayOffset = offset;
}

void QMParameterControlWidget::setDisplayResolution(std::uint32_t slot, double resolution, bool) {
    if (slot == 0)
        displayResolution = resolution;
}

void QMParameterControlWidget::setKeyStep(std::uint32_t slot, double newStep, bool) {
    if (slot == 0)
        keyStep = newStep;
}

void QMParameterControlWidget::setTextTransformer(
    std::unique_ptr<QMParameterTextTransformer> transformer) {
    textTransformer = transformer != nullptr ? std::move(transformer)
                                             : std::make_unique<QMParameterTextTransformer>();
    repaint();
}

void QMParameterControlWidget::step(double amount) {
    writeDisplayValue(0, getSlotValue(0) + amount, true);
}

void QMParameterControlWidget::stepUp(bool fine) {
    step(keyStep * (fine ? fineStep : 1.0));
}

void QMParameterControlWidget::stepDown(bool fine) {
    step(-keyStep * (fine ? fineStep : 1.0));
}

bool QMParameterControlWidget::activate() {
    return readout() != nullptr && readout()->activate();
}

bool QMParameterControlWidget::beginTextEntry(juce::juce_wchar character) {
    return readout() != nullptr && readout()->beginTextEntry(character);
}

// The readouts.

void QMParameterControlWidget::setReadout(QMWidget* newReadout) {
    if (auto* const before = dynamic_cast<QMParameterReadoutWidget*>(readout());
        before != nullptr && before != newReadout)
        before->setOwner(nullptr);
    attachedReadout = newReadout;
    if (newReadout == nullptr)
        return;
    if (auto* const shown = dynamic_cast<QMParameterReadoutWidget*>(newReadout))
        shown->setOwner(this);
    newReadout->setParameterValue(0, getSlotValue(0), false);
}

QMEphemeralReadout* QMParameterControlWidget::getEphemeralReadout() const {
    return static_cast<QMEphemeralReadout*>(ephemeralReadout.getComponent());
}

void QMParameterControlWidget::openEphemeralReadout() {
    if (!showEphemeralReadout || ephemeralReadout != nullptr || getParentComponent() == nullptr)
        return;
    auto* const floating = new QMEphemeralReadout(*this, getMagnification(), ephemeralBelow);
    ephemeralReadout = floating;
    floating->showText(getDisplayText(), *this);
}

void QMParameterControlWidget::fadeEphemeralReadout() {
    if (QMEphemeralReadout* const floating = getEphemeralReadout())
        floating->startFading();
    ephemeralReadout = nullptr;
}
