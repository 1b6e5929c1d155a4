// SPDX-License-Identifier: GPL-3.0-or-later
// The last seconds of two oscillators: a trace for each, as high as its frequency (0 to 440 Hz) and
// as opaque as its gain, scrolling from right to left. The meter record holds, for each, the cosine
// of its phase's step from frame to frame and its level. [message thread]
#pragma once

#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/QMWidget.h"
#include "widgets/history/HistoryBackdrop.h"
#include "widgets/history/HistoryRing.h"
#include "widgets/meters/MeterClock.h"

#include <array>
#include <cstddef>
#include <cstdint>

struct QMWidgetStyleRecord;

class QMPitchHistory : public QMWidget, public IQMDisplayWidget {
public:
    static constexpr double usualLength = 3.0; ///< seconds
    static constexpr std::size_t numOscillators = 2;

    struct Sample {
        double time = 0.0;                              ///< seconds
        std::array<double, numOscillators> frequency{}; ///< hertz; NaN for what is no frequency
        std::array<double, numOscillators> gain{};      ///< as recorded
    };

    /// seconds: how long the history is. style: an ImageStyleRecord, whose picture is then the
    /// backdrop; another one, or null, is no picture.
    explicit QMPitchHistory(double seconds = usualLength,
                            const QMWidgetStyleRecord* style = nullptr, MeterClock timeSource = {});

    /// There is one display slot. Unbound, the history is empty.
    void bindMeterRecord(std::uint32_t slot, FourCharCode displayID, std::uint32_t kind,
                         const NoxMeterRecord* record) override;
    /// Takes a sample; to be called at the display's rate.
    void tick() override;

    /// Hertz, 44100 until set; of the samples from now on. What is no rate is ignored.
    void setSampleRate(float rate);

    [[nodiscard]] float getSampleRate() const { return sampleRate; }

    // The backdrop. The first of these that is set and there; else the widget's own glass.

    /// The picture of a display window, and no traces.
    void setUseWindowImage(bool flag);

    [[nodiscard]] bool usesWindowImage() const { return useWindowImage; }

    /// Set at first when the style has a picture.
    void setUseStyleImage(bool flag);

    [[nodiscard]] bool usesStyleImage() const { return useStyleImage; }

    [[nodiscard]] const HistoryRing<Sample>& getSamples() const { return samples; }

    [[nodiscard]] double getHistoryLength() const { return historyLength; }

    /// "61.2 Hz, 55.0 Hz": now; a dash for an oscillator that is silent.
    [[nodiscard]] juce::String getDisplayText() const override;

    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    std::unique_ptr<juce::AccessibilityHandler> createAccessibilityHandler() override;

private:
    [[nodiscard]] Sample takeSample() const;
    [[nodiscard]] bool hasSomethingToSee() const;
    [[nodiscard]] float heightOf(double frequency) const;
    [[nodiscard]] juce::String textOf(std::size_t oscillator) const;
    void backdropChanged();
    void drawBackdrop(juce::Graphics& g) const;
    void drawStyleImage(juce::Graphics& g, juce::Rectangle<int> area) const;
    void drawOwnBackdrop(juce::Graphics& g, juce::Rectangle<int> area) const;
    void drawTrace(juce::Graphics& g, std::size_t oscillator) const;

    MeterClock clock;
    const NoxMeterRecord* oscillatorRecord = nullptr;
    double historyLength;
    double now = 0.0; ///< of the last tick, seconds
    float sampleRate = 44100.0f;
    HistoryRing<Sample> samples;
    bool somethingWasSeen = false; ///< after the last tick
    juce::Image styleImage;
    juce::Image windowImage;
    bool useWindowImage = false;
    bool useStyleImage;
    HistoryBackdrop backdrop;
};
