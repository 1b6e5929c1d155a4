// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/drawing/QMGraphicsDrawingTarget.h"

#include <algorithm>

QMGraphicsDrawingTarget::QMGraphicsDrawingTarget(juce::Graphics& context)
    : graphics(context) {
    graphics.saveState();
    applyPaint();
}

QMGraphicsDrawingTarget::~QMGraphicsDrawingTarget() {
    while (!saved.empty())
        QMGraphicsDrawingTarget::restoreState();
    graphics.restoreState();
}

void QMGraphicsDrawingTarget::saveState() {
    graphics.saveState();
    saved.push_back(paint);
}

void QMGraphicsDrawingTarget::restoreState() {
    if (saved.empty())
        return;
    graphics.restoreState();
    paint = saved.back();
    saved.pop_back();
}

void QMGraphicsDrawingTarget::setColour(juce::Colour colour) {
    paint.colour = colour;
    applyPaint();
}

void QMGraphicsDrawingTarget::setOpacity(float opacity) {
    paint.opacity = std::clamp(opacity, 0.0F, 1.0F);
    applyPaint();
}

void QMGraphicsDrawingTarget::setFont(const juce::Font& font) {
    graphics.setFont(font);
}

void QMGraphicsDrawingTarget::addTransform(const juce::AffineTransform& transform) {
    graphics.addTransform(transform);
}

bool QMGraphicsDrawingTarget::clipToRectangle(juce::Rectangle<int> area) {
    return graphics.reduceClipRegion(area);
}

bool QMGraphicsDrawingTarget::clipToPath(const juce::Path& path) {
    return graphics.reduceClipRegion(path);
}

juce::Rectangle<int> QMGraphicsDrawingTarget::clipBounds() const {
    return graphics.getClipBounds();
}

void QMGraphicsDrawingTarget::fillAll() {
    graphics.fillAll();
}

void QMGraphicsDrawingTarget::drawLine(juce::Line<float> line, float thickness) {
    graphics.drawLine(line, thickness);
}

void QMGraphicsDrawingTarget::drawRectangle(juce::Rectangle<float> area, float thickness) {
    graphics.drawRect(area, thickness);
}

void QMGraphicsDrawingTarget::fillRectangle(juce::Rectangle<float> area) {
    graphics.fillRect(area);
}

void QMGraphicsDrawingTarget::strokePath(const juce::Path& path, float thickness) {
    graphics.strokePath(path, juce::PathStrokeType(thickness));
}

void QMGraphicsDrawingTarget::fillPath(const juce::Path& path) {
    graphics.fillPath(path);
}

void QMGraphicsDrawingTarget::drawText(const juce::String& text, juce::Rectangle<float> area,
                                       juce::Justification justification) {
    graphics.drawText(text, area, justification, true);
}

void QMGraphicsDrawingTarget::drawImage(const juce::Image& image, juce::Rectangle<float> area) {
    if (image.isNull())
        return;
    graphics.setOpacity(paint.opacity);
    graphics.drawImage(image, area, juce::RectanglePlacement::stretchToFit);
    applyPaint();
}

void QMGraphicsDrawingTarget::applyPaint() {
    graphics.setColour(paint.colour.withMultipliedAlpha(paint.opacity));
}
