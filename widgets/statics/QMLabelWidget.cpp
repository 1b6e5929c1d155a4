// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMLabelWidget.h"

#include "widgets/drawing/WidgetStyle.h"
#include "widgets/statics/LabelTextColour.h"
#include "widgets/statics/LinkOpener.h"

#include <algorithm>

namespace {

bool isMailAddress(const juce::String& text) {
    return text.containsChar('@') && !text.containsChar(':');
}

void drawLine(juce::Graphics& g, const juce::String& text, int width, int height,
              juce::Justification justification) {
    const int lines =
        std::max(1, static_cast<int>(static_cast<float>(height) / g.getCurrentFont().getHeight()));
    g.drawFittedText(text, 0, 0, width, height, justification, lines);
}

} // namespace

QMLabelWidget::QMLabelWidget()
    : QMWidget(0) {
    linkChanged();
}

void QMLabelWidget::setName(const juce::String& name) {
    QMWidget::setName(name);
    linkChanged();
}

void QMLabelWidget::setVertical(bool flag) {
    vertical = flag;
    repaint();
}

void QMLabelWidget::setJustification(juce::Justification newJustification) {
    justification = newJustification;
    repaint();
}

void QMLabelWidget::setTextColour(std::optional<juce::Colour> colour) {
    if (colour == ownColour)
        return;
    ownColour = colour;
    repaint();
}

void QMLabelWidget::setLink(const juce::String& target) {
    link = target;
    linkChanged();
}

juce::String QMLabelWidget::linkToOpen() const {
    if (link.isEmpty())
        return isMailAddress(getName()) ? "mailto:" + getName() : juce::String();
    return isMailAddress(link) ? "mailto:" + link : link;
}

void QMLabelWidget::linkChanged() {
    const bool opens = linkToOpen().isNotEmpty();
    setInterceptsMouseClicks(opens, false);
    setMouseCursor(opens ? juce::MouseCursor::PointingHandCursor : juce::MouseCursor::NormalCursor);
}

void QMLabelWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    repaint();
}

void QMLabelWidget::paint(juce::Graphics& g) {
    const int length = vertical ? getHeight() : getWidth();
    const int thickness = vertical ? getWidth() : getHeight();
    const float height =
        std::min(WidgetStyle::fontHeight * getMagnification(), static_cast<float>(thickness));
    if (height <= 0.0f)
        return;
    g.setColour(LabelTextColour::of(*this, ownColour));
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain, height));
    if (vertical) {
        g.addTransform(juce::AffineTransform::rotation(-juce::MathConstants<float>::halfPi)
                           .translated(0.0f, static_cast<float>(getHeight())));
    }
    drawLine(g, getName(), length, thickness,
             vertical ? juce::Justification(juce::Justification::centred) : justification);
}

void QMLabelWidget::mouseUp(const juce::MouseEvent& event) {
    const juce::String target = linkToOpen();
    if (target.isNotEmpty() && event.mods.isLeftButtonDown() &&
        getLocalBounds().contains(event.getPosition()))
        openLink(target);
}

juce::AccessibilityRole QMLabelWidget::accessibleRole() const {
    return linkToOpen().isEmpty() ? juce::AccessibilityRole::label
                                  : juce::AccessibilityRole::hyperlink;
}
