// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/QMPopupMenuWidget.h"

#include "widgets/buttons/ButtonDrawing.h"
#include "widgets/drawing/SharedDrawing.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/menus/ItemMenu.h"
#include "widgets/menus/MenuAccessibility.h"
#include "widgets/menus/MenuDrawing.h"
#include "widgets/statics/LabelTextColour.h"

#include <algorithm>
#include <cmath>
#include <utility>

QMPopupMenuWidget::QMPopupMenuWidget(FirstItem first)
    : firstItem(first)
    , frameLeft(loadResourceImage("oglossywindowleft.png"))
    , frameMiddle(loadResourceImage("oglossywindowmiddle.png"))
    , frameRight(loadResourceImage("oglossywindowright.png")) {
    setCanTakeFocus(true);
}

double QMPopupMenuWidget::firstValue() const {
    return firstItem == FirstItem::zero ? 0.0 : std::round(getSlotMinimum(0));
}

int QMPopupMenuWidget::currentItem() const {
    const double item = std::round(value - firstValue());
    return item >= 0.0 && item < items.size() ? static_cast<int>(item) : -1;
}

void QMPopupMenuWidget::setItems(const juce::StringArray& texts, int shownItem) {
    items = texts;
    value = firstValue() + shownItem;
    repaint();
    tellAccessibility();
}

juce::String QMPopupMenuWidget::getDisplayText() const {
    const juce::String text = items[currentItem()];
    return text.isEmpty() ? "UNKNOWN" : text;
}

void QMPopupMenuWidget::setTextColour(std::optional<juce::Colour> colour) {
    ownColour = colour;
    repaint();
}

void QMPopupMenuWidget::setFramePictures(const juce::Image& left, const juce::Image& middle,
                                         const juce::Image& right) {
    frameLeft = left;
    frameMiddle = middle;
    frameRight = right;
    repaint();
}

void QMPopupMenuWidget::setParameterValue(std::uint32_t slot, double newValue, bool notify) {
    if (slot != 0 || !std::isfinite(newValue))
        return;
    if (std::exchange(value, newValue) != newValue) {
        if (isDeferringUpdates())
            repaintIsDue = true;
        else
            repaint();
        tellAccessibility();
    }
    QMWidget::setParameterValue(slot, newValue, notify);
}

double QMPopupMenuWidget::getSlotValue(std::uint32_t slot) const {
    return slot == 0 ? value : 0.0;
}

void QMPopupMenuWidget::flushDeferredUpdates() {
    if (std::exchange(repaintIsDue, false))
        repaint();
}

void QMPopupMenuWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    repaint();
}

void QMPopupMenuWidget::write(int item) {
    const juce::Component::SafePointer<QMPopupMenuWidget> self(this);
    const double written = firstValue() + item;
    setParameterValue(0, written, true);
    if (self == nullptr || !changeCallback)
        return;
    const ChangeCallback callback = changeCallback;
    callback(*this, written);
}

void QMPopupMenuWidget::choose(int item) {
    // The menu stood open for a while.
    if (!isEnabled() || item >= items.size() || item == currentItem())
        return;
    const juce::Component::SafePointer<QMPopupMenuWidget> self(this);
    beginTouch(0);
    if (self != nullptr)
        write(item);
    if (self != nullptr)
        endTouch(0);
}

void QMPopupMenuWidget::stepUp(bool) {
    if (currentItem() < items.size() - 1)
        write(currentItem() + 1);
}

void QMPopupMenuWidget::stepDown(bool) {
    if (currentItem() > 0)
        write(currentItem() - 1);
}

bool QMPopupMenuWidget::activate() {
    if (!isEnabled())
        return false;
    openMenu();
    return true;
}

void QMPopupMenuWidget::openMenu() {
    ItemMenu::show(*this, items, currentItem(), ItemMenu::columnsFor(items.size()),
                   [this](int item) { choose(item); });
}

void QMPopupMenuWidget::mouseDown(const juce::MouseEvent& event) {
    if (isEnabled() && !pressIsTaken(event))
        openMenu();
}

juce::Font QMPopupMenuWidget::textFont() const {
    const float height = std::min(WidgetStyle::fontHeight * getMagnification(),
                                  0.65f * static_cast<float>(getHeight()));
    return WidgetStyle::get().font(TypefaceStyle::plain, std::max(1.0f, height));
}

int QMPopupMenuWidget::getIdealWidth() const {
    const juce::Font font = textFont();
    float widest = font.getStringWidthFloat(getDisplayText());
    for (const juce::String& text : items)
        widest = std::max(widest, font.getStringWidthFloat(text));
    return static_cast<int>(std::ceil(widest)) + 2 * getHeight();
}

void QMPopupMenuWidget::paint(juce::Graphics& g) {
    drawFrame(g);
    drawText(g);
}

void QMPopupMenuWidget::drawFrame(juce::Graphics& g) const {
    const juce::Colour background = WidgetStyle::get().colour(WidgetColours::depth);
    if (frameLeft.isNull() || frameMiddle.isNull() || frameRight.isNull()) {
        drawMenuWindow(g, getLocalArea().toFloat(), background);
        return;
    }
    g.setColour(background);
    g.fillRect(getLocalArea().reduced(1));
    g.setOpacity(1.0f);
    drawGlossyFrame(g, getLocalArea(), frameLeft, frameMiddle, frameRight);
}

void QMPopupMenuWidget::drawText(juce::Graphics& g) const {
    constexpr float disabledOpacity = 0.45f;
    const juce::Colour bright = WidgetStyle::get().colour(WidgetColours::strongText);
    const juce::Colour colour = LabelTextColour::of(*this, ownColour.value_or(bright));
    const juce::Font font = textFont();
    juce::Rectangle<float> area =
        getLocalArea().toFloat().reduced(0.35f * static_cast<float>(getHeight()), 0.0f);
    const juce::Rectangle<float> arrow = area.removeFromRight(0.8f * font.getHeight());
    g.setColour(colour.withMultipliedAlpha(isEnabled() ? 1.0f : disabledOpacity));
    g.setFont(font);
    g.drawFittedText(getDisplayText(), area.toNearestInt(), juce::Justification::centredLeft, 1);
    if (items.size() >= 2)
        drawMenuArrow(g, arrow.withSizeKeepingCentre(arrow.getWidth(), arrow.getWidth()));
}

void QMPopupMenuWidget::paintOverChildren(juce::Graphics& g) {
    ButtonDrawing::drawMarks(g, *this);
    QMWidget::paintOverChildren(g);
}

void QMPopupMenuWidget::enablementChanged() {
    repaint();
}

juce::AccessibilityRole QMPopupMenuWidget::accessibleRole() const {
    return juce::AccessibilityRole::comboBox;
}

std::unique_ptr<juce::AccessibilityHandler> QMPopupMenuWidget::createAccessibilityHandler() {
    return std::make_unique<MenuAccessibility>(*this);
}
