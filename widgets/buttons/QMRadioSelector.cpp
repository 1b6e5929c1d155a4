// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMRadioSelector.h"

#include "widgets/buttons/ButtonDrawing.h"
#include "widgets/buttons/SegmentRow.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

QMRadioSelector::QMRadioSelector() {
    setCanTakeFocus(true);
}

QMRadioSelector::~QMRadioSelector() = default;

QMPillToggleButton& QMRadioSelector::segment(int index) const {
    return *segments[static_cast<std::size_t>(index)];
}

void QMRadioSelector::setItems(const juce::StringArray& texts, int shownItem) {
    matchSegmentCount(texts.size());
    for (int i = 0; i < texts.size(); ++i)
        segment(i).setName(texts[i]);
    setItemHelpTexts(helpTexts);
    light(shownItem);
    resized();
    repaint();
}

void QMRadioSelector::setItemHelpTexts(const juce::StringArray& texts) {
    helpTexts = texts;
    for (int i = 0; i < getNumSegments(); ++i)
        segment(i).setTooltip(helpTexts[i]);
}

void QMRadioSelector::matchSegmentCount(int count) {
    if (count < getNumSegments())
        segments.resize(static_cast<std::size_t>(count));
    while (getNumSegments() < count)
        addSegment(getNumSegments());
}

void QMRadioSelector::addSegment(int index) {
    auto added = std::make_unique<QMPillToggleButton>();
    // The row has the keyboard, and says which segment is lit.
    added->setCanTakeFocus(false);
    added->setSelectable(false);
    added->setStaticState(true);
    added->setMagnification(getMagnification());
    added->setClickHandler([this](QMTrackedMultistateButtonWidget&, const juce::MouseEvent& event) {
        return pressIsTaken(event.getEventRelativeTo(this));
    });
    added->setReleaseCallback([this, index](QMTrackedMultistateButtonWidget&, bool pressed) {
        if (pressed)
            choose(index);
    });
    addAndMakeVisible(*added);
    segments.push_back(std::move(added));
}

void QMRadioSelector::setMargin(int pixels) {
    margin = pixels;
    resized();
}

void QMRadioSelector::choose(int index) {
    const juce::Component::SafePointer<QMRadioSelector> self(this);
    writeAsGesture(0, index);
    if (self == nullptr || !changeCallback)
        return;
    const ChangeCallback callback = changeCallback;
    callback(*this, index);
}

void QMRadioSelector::light(int index) {
    for (int i = 0; i < getNumSegments(); ++i)
        segment(i).setParameterValue(0, i == index ? 1.0 : 0.0, false);
    if (std::exchange(lit, index) != index)
        tellAccessibility();
}

void QMRadioSelector::setParameterValue(std::uint32_t slot, double value, bool notify) {
    // Numbers beyond the integers are nobody's index.
    if (slot != 0 || !(std::abs(value) < 1.0e9))
        return;
    const juce::Component::SafePointer<QMRadioSelector> self(this);
    QMWidget::setParameterValue(slot, value, notify);
    if (self != nullptr)
        light(static_cast<int>(value));
}

double QMRadioSelector::getSlotValue(std::uint32_t slot) const {
    return slot == 0 ? lit : 0.0;
}

juce::String QMRadioSelector::getDisplayText() const {
    return lit >= 0 && lit < getNumSegments() ? segment(lit).getName() : juce::String();
}

void QMRadioSelector::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    for (const auto& each : segments)
        each->setMagnification(factor);
}

void QMRadioSelector::stepUp(bool) {
    if (lit < getNumSegments() - 1)
        choose(lit + 1);
}

void QMRadioSelector::stepDown(bool) {
    if (lit > 0)
        choose(std::min(lit, getNumSegments()) - 1);
}

bool QMRadioSelector::activate() {
    if (segments.empty() || !isEnabled())
        return false;
    choose((std::max(0, lit) + 1) % getNumSegments());
    return true;
}

int QMRadioSelector::getIdealWidth() const {
    int widest = 0;
    for (const auto& each : segments)
        widest = std::max(widest, each->getIdealWidth());
    const int count = getNumSegments();
    // One shared pixel less for each neighbour.
    return 2 * margin + count * widest - std::max(0, count - 1);
}

void QMRadioSelector::resized() {
    const std::vector<RowSegment> row =
        segmentRow(getLocalBounds().reduced(margin), getNumSegments());
    for (std::size_t i = 0; i < row.size(); ++i) {
        segments[i]->setBounds(row[i].area);
        segments[i]->setJoinedEdges(row[i].joined);
    }
}

void QMRadioSelector::paint(juce::Graphics&) {}

void QMRadioSelector::paintOverChildren(juce::Graphics& g) {
    ButtonDrawing::drawMarks(g, *this);
    QMWidget::paintOverChildren(g);
}

juce::AccessibilityRole QMRadioSelector::accessibleRole() const {
    return juce::AccessibilityRole::group;
}
