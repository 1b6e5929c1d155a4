// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/QMPillToggleButton.h"

#include "widgets/buttons/SegmentRow.h"
#include "widgets/drawing/WidgetStyle.h"

#include <algorithm>
#include <utility>

QMPillToggleButton::QMPillToggleButton()
    : QMTrackedMultistateButtonWidget(2) {}

void QMPillToggleButton::setDrawingHidden(bool flag) {
    drawingHidden = flag;
    repaint();
}

void QMPillToggleButton::setForcedLook(Look look) {
    forcedLook = look;
    repaint();
}

QMPillToggleButton::Look QMPillToggleButton::currentLook() const {
    if (forcedLook != Look::normal)
        return forcedLook;
    if (getState() != 0 && isEnabled())
        return Look::on;
    return hasPressedLook() && isPointerInside() ? Look::pressed : Look::normal;
}

void QMPillToggleButton::setPictures(const juce::Image& off, const juce::Image& on) {
    offPicture = ButtonPicture(off);
    onPicture = ButtonPicture(on);
    repaint();
}

void QMPillToggleButton::setColours(juce::Colour off, juce::Colour on) {
    offColour = off;
    onColour = on;
    repaint();
}

void QMPillToggleButton::setTextColour(juce::Colour colour) {
    textColour = colour;
    repaint();
}

void QMPillToggleButton::setFlat(bool flag) {
    flat = flag;
    repaint();
}

void QMPillToggleButton::setCornerSize(float size) {
    cornerSize = size;
    repaint();
}

void QMPillToggleButton::setMargin(int pixels) {
    margin = pixels;
    repaint();
}

void QMPillToggleButton::setJoinedEdges(JoinedEdges edges) {
    joinedEdges = edges;
    repaint();
}

void QMPillToggleButton::setShapeDrawer(ShapeDrawer drawer) {
    shapeDrawer = std::move(drawer);
    repaint();
}

juce::Font QMPillToggleButton::textFont() const {
    const float inside = static_cast<float>(getHeight() - 2 * margin);
    const float height = std::min(WidgetStyle::fontHeight * getMagnification(), 0.75f * inside);
    return WidgetStyle::get().font(TypefaceStyle::plain, std::max(1.0f, height));
}

juce::Colour QMPillToggleButton::derivedColour(juce::Colour base) const {
    const juce::Colour reference = WidgetStyle::get().colour(WidgetColours::depth);
    return flat ? base.interpolatedWith(reference, 0.2f)
                : base.interpolatedWith(reference, 0.4f).darker(0.2f);
}

void QMPillToggleButton::paint(juce::Graphics& g) {
    if (drawingHidden)
        return;
    if (offPicture.isValid() && onPicture.isValid()) {
        ButtonPicture& picture = currentLook() == Look::on ? onPicture : offPicture;
        picture.draw(g, getLocalArea(), opacity());
        return;
    }
    drawPillForm(g);
    if (shapeDrawer)
        drawShape(g);
}

void QMPillToggleButton::drawPillForm(juce::Graphics& g) const {
    const Look look = currentLook();
    const juce::Rectangle<int> area = getLocalArea().reduced(margin);
    juce::Colour top = look == Look::on ? onColour : offColour;
    juce::Colour bottom = derivedColour(top);
    // Pressed in, the light falls on the lower half.
    if (look == Look::pressed)
        std::swap(top, bottom);
    drawPill(g, area.toFloat(), cornerSize, top, bottom, joinedEdges);
    drawSegmentJoint(g, area, joinedEdges);
    if (shapeDrawer)
        return;
    g.setColour(textColour.withMultipliedAlpha(opacity()));
    g.setFont(textFont());
    g.drawFittedText(getName(), area.reduced(2, 0), juce::Justification::centred, 1);
}

void QMPillToggleButton::drawShape(juce::Graphics& g) const {
    constexpr float shapeAlpha = 208.0f / 255.0f;
    const juce::Rectangle<float> bounds = getLocalArea().toFloat();
    g.setColour(juce::Colours::black.withAlpha(shapeAlpha * opacity()));
    shapeDrawer(g, bounds.reduced(bounds.getWidth() / 5.0f, bounds.getHeight() / 5.0f));
}

void QMPillToggleButton::paintOverChildren(juce::Graphics& g) {
    if (!drawingHidden)
        QMTrackedMultistateButtonWidget::paintOverChildren(g);
}
