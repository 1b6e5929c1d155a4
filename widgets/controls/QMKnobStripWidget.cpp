// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMKnobStripWidget.h"

#include "widgets/drawing/WidgetStyle.h"
#include "widgets/images/ResourceImages.h"

namespace {

constexpr float factorOfStretchedTaper = 1000.0f;
constexpr float disabledOpacity = 0.5f;
constexpr float heightOfWidthBelow = 12.8f / 66.0f;
constexpr float heightOfWidthAbove = 14.0f / 66.0f;
constexpr float labelGap = 4.0f; ///< pixels
constexpr float leastTextScale = 0.8f;
constexpr float fontOfLabelHeight = 0.85f;

std::uint8_t channel(std::uint32_t value) {
    return static_cast<std::uint8_t>(juce::jmin(value, 255u));
}

} // namespace

QMKnobStripWidget::QMKnobStripWidget(const KnobStyleRecord* style) {
    drawn.setLook(KnobTypes::get(knobType).look);
    const KnobStyleRecord defaults;
    applyStyle(style != nullptr ? *style : defaults);
}

void QMKnobStripWidget::applyStyle(const KnobStyleRecord& style) {
    const KnobStyleRecord defaults;
    const auto chosen = [&](std::uint32_t bit) -> const KnobStyleRecord& {
        return (style.presentMask & bit) != 0 ? style : defaults;
    };
    const KnobStyleRecord& colour = chosen(KnobStyleRecord::hasColour);
    accentColour = juce::Colour(channel(colour.red), channel(colour.green), channel(colour.blue),
                                channel(colour.alpha));
    const std::int32_t option = chosen(KnobStyleRecord::hasStyleOption).styleOption;
    labelPosition = option == labelBelow || option == labelAbove ? option : noLabel;
    ring.setMode(chosen(KnobStyleRecord::hasStyleOption2).styleOption2);
    ring.setSecondValue(chosen(KnobStyleRecord::hasStyleValue1).styleValue1);
    const auto taper = static_cast<std::uint32_t>(chosen(KnobStyleRecord::hasTaperMode).taperMode);
    setTaperMode(taper);
    if (taper == ControlTaper::stretchedLogarithmic)
        setTaperFactor(factorOfStretchedTaper);
    setKnobType(chosen(KnobStyleRecord::hasKnobType).knobType);
}

// The knob.

void QMKnobStripWidget::setKnobType(std::int32_t type) {
    const std::int32_t wanted = KnobTypes::limited(type);
    if (wanted == knobType)
        return;
    knobType = wanted;
    const KnobType& chosen = KnobTypes::get(wanted);
    isBlack = chosen.isBlack;
    juce::Image image;
    if (chosen.keepsImage)
        image = frames.getImage();
    else if (chosen.imageName != nullptr)
        image = loadResourceImage(chosen.imageName);
    frames.setImage(image, chosen.frameCount);
    drawn.setLook(chosen.look);
    arrange();
}

void QMKnobStripWidget::setKnobImage(const juce::Image& image, std::int32_t frameCount) {
    frames.setImage(image, frameCount);
    arrange();
}

void QMKnobStripWidget::setFrameArrangement(std::int32_t columns, std::int32_t rows,
                                            bool gridFlag) {
    frames.setArrangement(columns, rows, gridFlag);
    arrange();
}

void QMKnobStripWidget::setAccentColour(juce::Colour colour) {
    accentColour = colour;
    repaint();
}

void QMKnobStripWidget::setShowRings(bool flag) {
    showRings = flag;
    repaint();
}

void QMKnobStripWidget::setRingWidth(double width) {
    ringWidth = width;
    arrange();
}

void QMKnobStripWidget::setRingMode(std::int32_t mode) {
    ring.setMode(mode);
    repaint();
}

void QMKnobStripWidget::setSecondValue(float newValue) {
    ring.setSecondValue(newValue);
    repaint();
}

void QMKnobStripWidget::setAlwaysDrawRing(bool flag) {
    alwaysDrawRing = flag;
    repaint();
}

void QMKnobStripWidget::setLabel(std::int32_t position, float height) {
    labelPosition = position;
    labelHeight = height;
    arrange();
}

void QMKnobStripWidget::setShowValueText(bool flag) {
    showValueText = flag;
    repaint();
}

void QMKnobStripWidget::setTextColour(std::optional<juce::Colour> colour) {
    if (colour == captionColour)
        return;
    captionColour = colour;
    repaint();
}

// Where things are.

float QMKnobStripWidget::usedLabelHeight() const {
    const auto width = static_cast<float>(getWidth());
    if (labelPosition != labelBelow && labelPosition != labelAbove)
        return 0.0f;
    if (labelHeight > 0.0f)
        return labelHeight;
    return width * (labelPosition == labelBelow ? heightOfWidthBelow : heightOfWidthAbove);
}

juce::Rectangle<int> QMKnobStripWidget::getLabelArea() const {
    const int height = juce::roundToInt(usedLabelHeight());
    const juce::Rectangle<int> all = getLocalBounds();
    return labelPosition == labelBelow ? all.withTop(all.getBottom() - height)
                                       : all.withHeight(height);
}

juce::Rectangle<int> QMKnobStripWidget::getKnobArea() const {
    const float label = usedLabelHeight();
    const auto width = static_cast<float>(getWidth());
    const auto height = static_cast<float>(getHeight());
    const bool hasFrames = frames.hasImage();
    const float frameWidth = hasFrames ? static_cast<float>(frames.getFrameWidth()) : 1.0f;
    const float frameHeight = hasFrames ? static_cast<float>(frames.getFrameHeight()) : 1.0f;
    const float scale = juce::jmin(width / frameWidth, (height - label) / frameHeight);
    const int knobWidth = juce::jmax(0, static_cast<int>(frameWidth * scale));
    const int knobHeight = juce::jmax(0, static_cast<int>(frameHeight * scale));
    const int room = getHeight() - knobHeight;
    int y = room / 2;
    if (labelPosition == labelBelow)
        y = juce::jmax(1, room - juce::roundToInt(label + labelGap));
    else if (labelPosition == labelAbove)
        y = juce::jmin(room, juce::jmax(0, juce::roundToInt(label - labelGap)));
    return {(getWidth() - knobWidth) / 2, y, knobWidth, knobHeight};
}

void QMKnobStripWidget::arrange() {
    ring.setArea(getKnobArea(), static_cast<float>(ringWidth) * getMagnification());
    repaint();
}

void QMKnobStripWidget::resized() {
    arrange();
}

void QMKnobStripWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    arrange();
}

void QMKnobStripWidget::positionChanged(float before) {
    const bool turnsByFrames = frames.hasImage() && !ringIsShown();
    if (turnsByFrames && frames.frameOf(before) == frames.frameOf(getValue()))
        return;
    repaint(getKnobArea());
}

bool QMKnobStripWidget::ringIsShown() const {
    return showRings && frames.getFrameCount() > 1;
}

// Drawing.

void QMKnobStripWidget::paint(juce::Graphics& g) {
    if (!isEnabled())
        g.beginTransparencyLayer(disabledOpacity);
    if (g.clipRegionIntersects(getLabelArea()))
        drawLabel(g);
    if (g.clipRegionIntersects(getKnobArea()))
        drawKnob(g);
    if (!isEnabled())
        g.endTransparencyLayer();
}

void QMKnobStripWidget::drawKnob(juce::Graphics& g) {
    const juce::Rectangle<int> area = getKnobArea();
    if (frames.hasImage())
        frames.draw(g, frames.frameOf(getValue()), area);
    else
        drawn.draw(g, area, getValue());
    if (ringIsShown()) {
        KnobRing::Look look;
        look.accent = accentColour;
        look.frame = getContrastColour();
        look.isEnabled = isEnabled();
        look.alwaysDrawn = alwaysDrawRing;
        ring.draw(g, getValue(), look);
    }
    if (frames.hasImage() || !showValueText)
        return;
    g.setColour(getContrastColourStrong());
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain,
                                      static_cast<float>(area.getHeight()) * 0.16f));
    g.drawFittedText(getDisplayText(), area, juce::Justification::centred, 1, leastTextScale);
}

void QMKnobStripWidget::drawLabel(juce::Graphics& g) const {
    if (getName().isEmpty())
        return;
    const juce::Rectangle<int> area = getLabelArea();
    const float height = juce::jmin(WidgetStyle::fontHeight * getMagnification(),
                                    static_cast<float>(area.getHeight()) * fontOfLabelHeight);
    g.setColour(captionColour.value_or(getContrastColour()));
    g.setFont(WidgetStyle::get().font(TypefaceStyle::plain, juce::jmax(1.0f, height)));
    g.drawFittedText(getName(), area, juce::Justification::centred, 1, leastTextScale);
}
