// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/QMImageWidget.h"

#include "widgets/drawing/WidgetStyle.h"
#include "widgets/images/ImageReduction.h"
#include "widgets/statics/LinkOpener.h"
#include "widgets/statics/StyleImage.h"

#include <algorithm>
#include <utility>

QMImageWidget::QMImageWidget(const QMWidgetStyleRecord* style)
    : QMWidget(0)
    , image(imageOfStyle(style)) {
    clickTargetChanged();
}

void QMImageWidget::setImage(const juce::Image& newImage) {
    image = newImage;
    reduced = {};
    repaint();
}

void QMImageWidget::setPlacement(juce::RectanglePlacement newPlacement) {
    placement = newPlacement;
    repaint();
}

void QMImageWidget::setOwnColour(std::optional<juce::Colour> colour) {
    ownColour = colour;
    repaint();
}

void QMImageWidget::setBadgeColour(juce::Colour colour) {
    if (colour == badgeColour)
        return;
    badgeColour = colour;
    repaint();
}

void QMImageWidget::setLink(const juce::String& target) {
    link = target;
    clickTargetChanged();
}

void QMImageWidget::setClickCallback(ClickCallback callback) {
    clickCallback = std::move(callback);
    clickTargetChanged();
}

void QMImageWidget::clickTargetChanged() {
    const bool doesSomething = link.isNotEmpty() || clickCallback;
    setInterceptsMouseClicks(doesSomething, false);
    setMouseCursor(doesSomething ? juce::MouseCursor::PointingHandCursor
                                 : juce::MouseCursor::NormalCursor);
}

void QMImageWidget::paint(juce::Graphics& g) {
    if (image.isValid())
        drawImage(g);
    else
        drawNameInstead(g);
    if (!badgeColour.isTransparent())
        drawBadge(g);
}

void QMImageWidget::drawImage(juce::Graphics& g) {
    if (getLocalBounds().isEmpty())
        return;
    const juce::Rectangle<double> area =
        placement.appliedTo(image.getBounds().toDouble(), getLocalBounds().toDouble());
    // In the screen's own pixels.
    const double scale = static_cast<double>(g.getInternalContext().getPhysicalPixelScaleFactor());
    const juce::Image& drawn = reducedBy(area.getWidth() * scale / image.getWidth(),
                                         area.getHeight() * scale / image.getHeight());
    g.setColour(ownColour.value_or(juce::Colours::black));
    g.drawImage(drawn, area.toFloat(), juce::RectanglePlacement::stretchToFit,
                ownColour.has_value());
}

const juce::Image& QMImageWidget::reducedBy(double factorX, double factorY) {
    if (factorX >= 1.0 || factorY >= 1.0 || factorX <= 0.0 || factorY <= 0.0)
        return image;
    const int width = reducedLength(image.getWidth(), factorX);
    const int height = reducedLength(image.getHeight(), factorY);
    if (reduced.isNull() || reduced.getWidth() != width || reduced.getHeight() != height)
        reduced = reduceImage(image, factorX, factorY);
    return reduced;
}

void QMImageWidget::drawNameInstead(juce::Graphics& g) const {
    const juce::Rectangle<int> area = getLocalBounds();
    const float height = 0.6f * static_cast<float>(area.getHeight());
    if (height < 1.0f)
        return;
    g.setColour(getContrastColourStrong().withMultipliedAlpha(0.8f));
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain, height));
    g.drawFittedText(getName(), area, juce::Justification::centred, 1, 0.5f);
}

void QMImageWidget::drawBadge(juce::Graphics& g) const {
    const juce::Rectangle<float> area =
        juce::Rectangle<int>(getWidth() - 13, getHeight() - 13, 12, 12).toFloat();
    g.setColour(badgeColour);
    g.fillRoundedRectangle(area, 6.0f);
    // Sets the dot off from the picture.
    g.setColour(getBaseColour());
    g.drawRoundedRectangle(area, 6.0f, 2.0f);
}

void QMImageWidget::mouseUp(const juce::MouseEvent& event) {
    if (!event.mods.isLeftButtonDown() || !getLocalBounds().contains(event.getPosition()))
        return;
    const juce::Component::SafePointer<QMImageWidget> self(this);
    if (link.isNotEmpty())
        openLink(link);
    if (self != nullptr && clickCallback)
        clickCallback(*this);
}

juce::AccessibilityRole QMImageWidget::accessibleRole() const {
    return juce::AccessibilityRole::image;
}
