// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMParameterReadoutWidget.h"

#include "widgets/controls/DisplayNumber.h"
#include "widgets/drawing/SharedDrawing.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/images/ResourceImages.h"

#include <cmath>
#include <utility>

namespace {

/// What a level that is off is rounded to.
constexpr double silence = -160.0;
constexpr float disabledOpacity = 0.4f;
constexpr float fontOfHeight = 0.72f;

} // namespace

QMParameterReadoutWidget::QMParameterReadoutWidget()
    : textTransformer(std::make_unique<QMParameterTextTransformer>()) {
    setCanTakeFocus(true);
    shownText = getDisplayText();
}

QMParameterReadoutWidget::~QMParameterReadoutWidget() {
    closeEditor(false);
}

void QMParameterReadoutWidget::setOwner(QMWidget* control) {
    owner = control;
    // One stop for the keyboard and for a screen reader: the control.
    setCanTakeFocus(control == nullptr);
    setAccessible(control == nullptr);
}

// Value.

void QMParameterReadoutWidget::setParameterValue(std::uint32_t slot, double plain, bool notify) {
    if (slot != 0 || std::isnan(plain))
        return;
    value = plain;
    if (!isDeferringUpdates())
        flushDeferredUpdates();
    QMWidget::setParameterValue(slot, plain, notify);
}

void QMParameterReadoutWidget::flushDeferredUpdates() {
    const juce::String text = getDisplayText();
    if (text == shownText)
        return;
    shownText = text;
    repaint();
    tellAccessibility();
}

double QMParameterReadoutWidget::getSlotValue(std::uint32_t slot) const {
    return slot == 0 ? value : QMWidget::getSlotValue(slot);
}

juce::String QMParameterReadoutWidget::getDisplayText() const {
    const double shown =
        roundedToResolution((value - displayOffset) * displayScale, displayResolution);
    if (shown == silence)
        return "-Inf";
    const int decimals = decimalsOfReadout(shown, displayResolution);
    return textTransformer->formatValue(shown, decimals)
        .replace("inf", juce::String::charToString(infinitySign));
}

void QMParameterReadoutWidget::setSlotMinimum(std::uint32_t slot, double plain, bool notify) {
    QMWidget::setSlotMinimum(slot, plain, notify);
    if (slot == 0)
        rangeMinimum = plain;
}

void QMParameterReadoutWidget::setSlotMaximum(std::uint32_t slot, double plain, bool notify) {
    QMWidget::setSlotMaximum(slot, plain, notify);
    if (slot == 0)
        rangeMaximum = plain;
}

void QMParameterReadoutWidget::setDisplayScale(std::uint32_t slot, double scale, bool) {
    if (slot == 0)
        displayScale = scale;
    flushDeferredUpdates();
}

void QMParameterReadoutWidget::setDisplayOffset(std::uint32_t slot, double offset, bool) {
    if (slot == 0)
        displayOffset = offset;
    flushDeferredUpdates();
}

void QMParameterReadoutWidget::setDisplayResolution(std::uint32_t slot, double resolution, bool) {
    if (slot == 0)
        displayResolution = resolution;
    flushDeferredUpdates();
}

void QMParameterReadoutWidget::setKeyStep(std::uint32_t slot, double newStep, bool) {
    if (slot == 0)
        keyStep = newStep;
}

void QMParameterReadoutWidget::setTextTransformer(
    std::unique_ptr<QMParameterTextTransformer> transformer) {
    textTransformer = transformer != nullptr ? std::move(transformer)
                                             : std::make_unique<QMParameterTextTransformer>();
    flushDeferredUpdates();
}

// Looks.

void QMParameterReadoutWidget::setTextColour(std::optional<juce::Colour> colour) {
    if (colour == textColour)
        return;
    textColour = colour;
    repaint();
}

void QMParameterReadoutWidget::setBackgroundColour(juce::Colour colour) {
    if (colour == backgroundColour)
        return;
    backgroundColour = colour;
    frame.drop();
    repaint();
}

void QMParameterReadoutWidget::setGlossy(bool flag) {
    if (flag == glossy)
        return;
    glossy = flag;
    frame.drop();
    repaint();
}

void QMParameterReadoutWidget::setFrameArea(juce::Rectangle<int> partOfBounds) {
    frameInBounds = partOfBounds;
    resized();
    repaint();
}

juce::Rectangle<int> QMParameterReadoutWidget::getFrameArea() const {
    if (frameInBounds.isEmpty())
        return getLocalBounds();
    return (frameInBounds.toFloat() * getMagnification())
        .toNearestIntEdges()
        .getIntersection(getLocalBounds());
}

bool QMParameterReadoutWidget::hitTest(int x, int y) {
    return getFrameArea().contains(x, y) && QMWidget::hitTest(x, y);
}

void QMParameterReadoutWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    resized();
}

juce::Font QMParameterReadoutWidget::font() const {
    const float height = juce::jmin(WidgetStyle::fontHeight * getMagnification(),
                                    static_cast<float>(getFrameArea().getHeight()) * fontOfHeight);
    return WidgetStyle::get().font(TypefaceStyle::plain, juce::jmax(1.0f, height));
}

juce::Colour QMParameterReadoutWidget::shownTextColour() const {
    return textColour.value_or(getContrastColour());
}

/// From 0, 0.
void QMParameterReadoutWidget::drawFrame(juce::Graphics& g) {
    const juce::Rectangle<int> area = getFrameArea().withZeroOrigin();
    const juce::Image left = loadResourceImage("oglossywindowleft.png");
    const juce::Image middle = loadResourceImage("oglossywindowmiddle.png");
    const juce::Image right = loadResourceImage("oglossywindowright.png");
    if (!glossy || left.isNull() || middle.isNull() || right.isNull()) {
        drawDrawnFrame(g, area.toFloat());
        return;
    }
    g.setColour(backgroundColour);
    g.fillRect(1, 1, juce::jmax(0, area.getWidth() - 2), juce::jmax(0, area.getHeight() - 2));
    g.setOpacity(1.0f);
    drawGlossyFrame(g, area, left, middle, right);
}

/// A sunken window: dark at its upper edge, light from below, a reflection across its upper half.
void QMParameterReadoutWidget::drawDrawnFrame(juce::Graphics& g,
                                              juce::Rectangle<float> area) const {
    const float corner = juce::jmin(4.0f * getMagnification(), area.getHeight() * 0.3f);
    const juce::Colour light = getContrastColourWeak();
    g.setColour(light.withAlpha(0.25f));
    g.drawRoundedRectangle(area.reduced(0.5f), corner, 1.0f);
    const juce::Rectangle<float> window = area.reduced(1.0f);
    g.setGradientFill(juce::ColourGradient::vertical(backgroundColour.darker(0.8f), window.getY(),
                                                     backgroundColour.brighter(0.06f),
                                                     window.getBottom()));
    g.fillRoundedRectangle(window, corner);
    if (!glossy)
        return;
    const juce::Rectangle<float> gloss =
        window.reduced(1.5f, 1.0f).withHeight(window.getHeight() * 0.42f);
    g.setGradientFill(
        juce::ColourGradient::vertical(juce::Colours::white.withAlpha(0.14f), gloss.getY(),
                                       juce::Colours::white.withAlpha(0.03f), gloss.getBottom()));
    g.fillRoundedRectangle(gloss, corner * 0.8f);
}

void QMParameterReadoutWidget::paint(juce::Graphics& g) {
    const bool isDim = !isEnabled();
    if (isDim)
        g.beginTransparencyLayer(disabledOpacity);
    const juce::Rectangle<int> area = getFrameArea();
    frame.draw(g, area, [this](juce::Graphics& drawing) { drawFrame(drawing); });
    if (editor == nullptr) {
        g.setColour(shownTextColour());
        g.setFont(font());
        g.drawFittedText(getDisplayText(), area, juce::Justification::centred, 1, 1.0f);
    }
    if (isDim)
        g.endTransparencyLayer();
}

void QMParameterReadoutWidget::resized() {
    if (editor != nullptr)
        editor->setBounds(getFrameArea());
}

void QMParameterReadoutWidget::enablementChanged() {
    if (!isEnabled())
        closeEditor(false);
    repaint();
}

void QMParameterReadoutWidget::visibilityChanged() {
    if (!isVisible())
        closeEditor(false);
}
