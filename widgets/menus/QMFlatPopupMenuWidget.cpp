// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/QMFlatPopupMenuWidget.h"

#include "widgets/drawing/WidgetStyle.h"
#include "widgets/menus/ItemMenu.h"
#include "widgets/menus/MenuAccessibility.h"
#include "widgets/menus/MenuDrawing.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr float fontToHeight = 0.7f;

} // namespace

void QMFlatPopupMenuWidget::setOptions(const FlatMenuOptions& newOptions) {
    options = newOptions;
    repaint();
}

void QMFlatPopupMenuWidget::setOwnColour(std::optional<juce::Colour> colour) {
    ownColour = colour;
    repaint();
}

void QMFlatPopupMenuWidget::setOwnFont(std::optional<juce::Font> font) {
    ownFont = std::move(font);
    repaint();
}

juce::Font QMFlatPopupMenuWidget::textFont() const {
    if (ownFont)
        return *ownFont;
    return WidgetStyle::get().font(TypefaceStyle::plain,
                                   std::max(1.0f, fontToHeight * static_cast<float>(getHeight())));
}

bool QMFlatPopupMenuWidget::isArrowActive() const {
    return isEnabled() && ((options.showArrow && getItems().size() >= 2) || options.forceArrow);
}

juce::Colour QMFlatPopupMenuWidget::textColour() const {
    if (ownColour)
        return *ownColour;
    return isArrowActive() ? getContrastColour() : getContrastColourStrong();
}

float QMFlatPopupMenuWidget::shownTextWidth() const {
    return options.showItemText ? textFont().getStringWidthFloat(itemText(getState())) : 0.0f;
}

FlatMenuLayout QMFlatPopupMenuWidget::currentLayout() const {
    const juce::Font font = textFont();
    FlatMenuMeasures measures;
    measures.bounds = getLocalBounds().toFloat();
    measures.fontHeight = font.getHeight();
    // The background comes with a gap of its own.
    const juce::String name =
        getName().isEmpty() || options.drawBackground ? getName() : getName() + " ";
    measures.nameWidth = std::ceil(font.getStringWidthFloat(name));
    measures.textWidth = shownTextWidth();
    measures.arrowIsActive = isArrowActive();
    return layOutFlatMenu(options, measures);
}

int QMFlatPopupMenuWidget::getIdealWidth() const {
    const juce::Font font = textFont();
    float width = 0.0f;
    if (options.showItemText) {
        for (const juce::String& text : getItems())
            width = std::max(width, font.getStringWidthFloat(text));
    }
    if (!options.hideLabel)
        width += font.getStringWidthFloat(getName());
    if (options.showArrow || options.forceArrow)
        width += 1.1f * font.getHeight();
    return static_cast<int>(std::ceil(width)) + 8;
}

void QMFlatPopupMenuWidget::paint(juce::Graphics& g) {
    const FlatMenuLayout layout = currentLayout();
    const juce::Colour colour = textColour().withMultipliedAlpha(opacity());
    if (options.drawBackground) {
        g.setColour(textColour().withMultipliedAlpha(0.12f * opacity()));
        g.fillRoundedRectangle(getLocalBounds().toFloat(), 3.0f);
    }
    g.setColour(colour);
    g.setFont(textFont());
    if (!layout.name.isEmpty())
        g.drawText(getName(), layout.name,
                   options.justification().getOnlyVerticalFlags() | juce::Justification::left,
                   true);
    if (options.showItemText)
        g.drawText(itemText(getState()), layout.text, options.justification(), true);
    if (!layout.arrow.isEmpty())
        drawMenuArrow(g, layout.arrow);
}

void QMFlatPopupMenuWidget::mouseDown(const juce::MouseEvent& event) {
    if (acceptsPress(event))
        openMenu();
}

bool QMFlatPopupMenuWidget::activate() {
    if (!isEnabled() || isLocked())
        return false;
    openMenu();
    return true;
}

int QMFlatPopupMenuWidget::menuColumns() const {
    return ItemMenu::columnsFor(getItems().size());
}

void QMFlatPopupMenuWidget::openMenu() {
    ItemMenu::show(*this, getItems(), getState(), menuColumns(),
                   [this](int item) { choose(item); });
}

void QMFlatPopupMenuWidget::choose(int item) {
    // The menu stood open for a while.
    if (!isEnabled() || isLocked() || item >= getStateCount() || item == getState())
        return;
    writeAsGesture(0, valueOfState(item));
}

juce::AccessibilityRole QMFlatPopupMenuWidget::accessibleRole() const {
    return juce::AccessibilityRole::comboBox;
}

std::unique_ptr<juce::AccessibilityHandler> QMFlatPopupMenuWidget::createAccessibilityHandler() {
    return std::make_unique<MenuAccessibility>(*this);
}
