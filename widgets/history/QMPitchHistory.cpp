// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/QMPitchHistory.h"

#include "widgets/history/HistoryAccessibility.h"
#include "widgets/history/HistoryGlass.h"
#include "widgets/history/HistoryTrace.h"
#include "widgets/images/ImageReduction.h"
#include "widgets/images/ResourceImages.h"
#include "widgets/statics/StyleImage.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double highestFrequency = 440.0;
constexpr double turn = 6.2831855; // radians
/// A sample leaves a little later than the left edge, so that the line there has an end beyond it.
constexpr double overhang = 0.1; // seconds

// At magnification 1.
constexpr float margin = 20.0f; // above the highest frequency and below 0
constexpr float rim = 3.0f;     ///< of the backdrops
constexpr float thickness = 4.0f;

const std::array<juce::Colour, QMPitchHistory::numOscillators>& traceColours() {
    static const std::array<juce::Colour, QMPitchHistory::numOscillators> colours{
        juce::Colour(0, 255, 0), juce::Colour(255, 127, 0)};
    return colours;
}

/// Not a number for a cosine that is none.
double frequencyOf(float cosine, float sampleRate) {
    const auto step = static_cast<float>(std::acos(static_cast<double>(cosine)));
    return static_cast<double>(step) / turn * static_cast<double>(sampleRate);
}

/// 0 for what is no gain.
float opacityOf(double gain) {
    return gain > 0.0 ? static_cast<float>(std::sqrt(std::min(gain, 1.0))) : 0.0f;
}

/// Reduced here, where the toolkit's own scaling would leave pixels out.
void drawStretched(juce::Graphics& g, const juce::Image& image, juce::Rectangle<int> area) {
    const double scale = static_cast<double>(g.getInternalContext().getPhysicalPixelScaleFactor());
    // A little more, for a length that rounding has made a little less than the whole number.
    const auto factor = [scale](int to, int from) { return (to * scale + 1e-6) / from; };
    const juce::Image drawn = reduceImage(image, factor(area.getWidth(), image.getWidth()),
                                          factor(area.getHeight(), image.getHeight()));
    g.setImageResamplingQuality(juce::Graphics::highResamplingQuality);
    g.drawImage(drawn, area.toFloat(), juce::RectanglePlacement::stretchToFit);
}

} // namespace

QMPitchHistory::QMPitchHistory(double seconds, const QMWidgetStyleRecord* style,
                               MeterClock timeSource)
    : QMWidget(0)
    , clock(timeSource ? std::move(timeSource) : systemMeterClock())
    , historyLength(seconds > 0.0 ? seconds : usualLength)
    , styleImage(imageOfStyle(style))
    , windowImage(loadResourceImage("UI_DIsplayWindow.png"))
    , useStyleImage(styleImage.isValid()) {}

// Samples.

void QMPitchHistory::bindMeterRecord(std::uint32_t slot, FourCharCode, std::uint32_t,
                                     const NoxMeterRecord* record) {
    if (slot != 0)
        return;
    oscillatorRecord = record;
    if (oscillatorRecord != nullptr)
        return;
    samples.clear();
    somethingWasSeen = false;
    repaint();
}

void QMPitchHistory::setSampleRate(float rate) {
    if (rate > 0.0f && std::isfinite(rate))
        sampleRate = rate;
}

void QMPitchHistory::tick() {
    now = static_cast<double>(clock()) * 0.001;
    if (oscillatorRecord == nullptr)
        return;
    samples.dropOutside(now - historyLength - overhang, now);
    const Sample sample = takeSample();
    if (!samples.isEmpty()) {
        // What is above the scale is seen once and is not kept.
        Sample& previous = samples.newest();
        for (std::size_t i = 0; i < numOscillators; ++i) {
            if (previous.frequency[i] > highestFrequency)
                previous.frequency[i] = sample.frequency[i];
        }
    }
    samples.append(sample);
    const bool somethingToSee = hasSomethingToSee();
    if (somethingToSee || somethingWasSeen)
        repaint();
    somethingWasSeen = somethingToSee;
}

QMPitchHistory::Sample QMPitchHistory::takeSample() const {
    Sample sample;
    sample.time = now;
    for (std::size_t i = 0; i < numOscillators; ++i) {
        sample.frequency[i] = frequencyOf(oscillatorRecord->values[2 * i], sampleRate);
        sample.gain[i] = static_cast<double>(oscillatorRecord->values[2 * i + 1]);
    }
    return sample;
}

bool QMPitchHistory::hasSomethingToSee() const {
    for (std::size_t i = 0; i < samples.size(); ++i) {
        for (std::size_t oscillator = 0; oscillator < numOscillators; ++oscillator) {
            if (std::isfinite(samples[i].frequency[oscillator]) &&
                juce::Colour().withAlpha(opacityOf(samples[i].gain[oscillator])).getAlpha() > 0)
                return true;
        }
    }
    return false;
}

juce::String QMPitchHistory::textOf(std::size_t oscillator) const {
    if (samples.isEmpty() || !(samples.newest().gain[oscillator] > 0.0) ||
        !std::isfinite(samples.newest().frequency[oscillator]))
        return juce::String::charToString(0x2013);
    return juce::String(samples.newest().frequency[oscillator], 1) + " Hz";
}

juce::String QMPitchHistory::getDisplayText() const {
    return textOf(0) + ", " + textOf(1);
}

std::unique_ptr<juce::AccessibilityHandler> QMPitchHistory::createAccessibilityHandler() {
    return makeHistoryAccessibility(*this);
}

// Drawing.

void QMPitchHistory::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    backdropChanged();
}

void QMPitchHistory::setUseWindowImage(bool flag) {
    useWindowImage = flag;
    backdropChanged();
}

void QMPitchHistory::setUseStyleImage(bool flag) {
    useStyleImage = flag;
    backdropChanged();
}

void QMPitchHistory::backdropChanged() {
    backdrop.drop();
    repaint();
}

void QMPitchHistory::paint(juce::Graphics& g) {
    backdrop.draw(g, getLocalArea(), [this](juce::Graphics& on) { drawBackdrop(on); });
    if (useWindowImage)
        return;
    // The traces come out from below one side of the rim and go under the other.
    const juce::Graphics::ScopedSaveState whole(g);
    g.reduceClipRegion(getLocalArea().reduced(juce::roundToInt(rim * getMagnification()), 0));
    for (std::size_t i = 0; i < numOscillators; ++i)
        drawTrace(g, i);
}

void QMPitchHistory::drawBackdrop(juce::Graphics& g) const {
    const juce::Rectangle<int> area = getLocalArea().withZeroOrigin();
    if (useWindowImage && windowImage.isValid())
        drawStretched(g, windowImage, area);
    else if (!useWindowImage && useStyleImage && styleImage.isValid())
        drawStyleImage(g, area);
    else
        drawOwnBackdrop(g, area);
}

void QMPitchHistory::drawStyleImage(juce::Graphics& g, juce::Rectangle<int> area) const {
    // The picture's grid is that of the traces: it grows and shrinks as they do, and none of it may
    // be beyond the edge.
    if (juce::approximatelyEqual(getMagnification(), 1.0f) && area.contains(styleImage.getBounds()))
        g.drawImageAt(styleImage, 0, 0);
    else
        drawStretched(g, styleImage, area);
}

void QMPitchHistory::drawOwnBackdrop(juce::Graphics& g, juce::Rectangle<int> area) const {
    const auto above = static_cast<float>(getLocalArea().getY());
    std::vector<HistoryMark> marks;
    for (const int hertz : {0, 110, 220, 330, 440}) {
        const juce::String unit = hertz == 440 ? " Hz" : "";
        marks.push_back({heightOf(hertz) - above, juce::String(hertz) + unit});
    }
    drawHistoryGlass(g, area, getMagnification(), marks, historyLength);
}

float QMPitchHistory::heightOf(double frequency) const {
    const juce::Rectangle<float> area = getLocalArea().toFloat();
    const double edge = static_cast<double>(margin * getMagnification());
    const double range = static_cast<double>(area.getHeight()) - 2.0 * edge;
    const double y =
        static_cast<double>(area.getBottom()) - edge - range * frequency / highestFrequency;
    return std::clamp(static_cast<float>(y), area.getY(), area.getBottom());
}

void QMPitchHistory::drawTrace(juce::Graphics& g, std::size_t oscillator) const {
    const juce::Rectangle<float> area = getLocalArea().toFloat();
    const double perSecond = static_cast<double>(area.getWidth() - 1.0f) / historyLength;
    HistoryTrace trace(traceColours()[oscillator], area, thickness * getMagnification());
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const Sample& sample = samples[i];
        if (!std::isfinite(sample.frequency[oscillator])) {
            trace.gap();
            continue;
        }
        const auto x = static_cast<float>((sample.time - now) * perSecond) + area.getRight() - 1.0f;
        trace.lineTo({x, heightOf(sample.frequency[oscillator])},
                     opacityOf(sample.gain[oscillator]));
    }
    trace.draw(g);
}
