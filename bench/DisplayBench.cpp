// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the product's editor costs while it is open at 120 percent: drawing all of it, and a tick
// with sound running together with the drawing that follows from it.

#include "bench/BenchModel.h"
#include "bench/Benchmarks.h"

#include "brolt/editor/QMBroltUI.h"
#include "brolt/model/QMBrolt_PlugIn.h"
#include "widgets/base/QMWidget.h"
#include "widgets/images/ResourceFolder.h"

#include <benchmark/benchmark.h>
#include <juce_gui_basics/juce_gui_basics.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstring>
#include <thread>

namespace {

using Seconds = std::chrono::duration<double>;
using Clock = std::chrono::steady_clock;

/// Always sounding: its snapshots are what a processor would give.
class SoundingPlugIn final : public QMBrolt_PlugIn {
public:
    using QMBrolt_PlugIn::QMBrolt_PlugIn;

    void fetchAnalysis(Packet& packet) override {
        phase += 0.21F;
        const float level = 0.5F + 0.45F * std::sin(phase);
        const float cosine = std::cos(6.2831855F * (60.0F + 40.0F * level) / 44100.0F);
        const std::array<float, 10> words{cosine,        0.9998F, level,        0.6F,  level,
                                          level * level, level,   0.8F * level, 0.25F, level};
        std::memcpy(packet.data, words.data(), std::min<std::size_t>(packet.length, sizeof words));
    }

private:
    float phase = 0.0F;
};

/// Without a window: drawn into a picture, as the toolkit draws what has changed.
class ShownEditor {
public:
    ShownEditor()
        : plugIn(model.stereo, nullptr, &model.environment)
        , editor(plugIn, nullptr)
        , picture(juce::Image::ARGB, 1, 1, true) {
        editor.setupAfterCreation();
        picture = juce::Image(juce::Image::ARGB, editor.getWidth(), editor.getHeight(), true);
    }

    void draw(const juce::RectangleList<int>& areas) {
        juce::Graphics g(picture);
        g.reduceClipRegion(areas);
        editor.paintEntireComponent(g, false);
        benchmark::ClobberMemory();
    }

    [[nodiscard]] juce::Rectangle<int> areaOf(const char (&id)[5]) const {
        return editor.widgetOfID(fourCharCode(id))->getBounds();
    }

    /// Sustain frequencies that go up and down, as automation moves them.
    void automate(double position) {
        const double hertz = 60.0 + 20.0 * std::sin(position);
        for (const FourCharCode id : {fourCharCode("sfre"), fourCharCode("dsfr")})
            plugIn.setParameterValue(plugIn.indexOfID(id), hertz);
    }

private:
    BenchModel model;
    SoundingPlugIn plugIn;

public:
    QMBroltUI editor;

private:
    juce::Image picture;
};

void benchEditorRepaint(benchmark::State& state) {
    const juce::ScopedJuceInitialiser_GUI toolkit;
    setResourceFolder(juce::File(BROLT_VST3_BUNDLE).getChildFile("Contents/Resources"));
    {
        ShownEditor shown;
        const juce::RectangleList<int> everything(shown.editor.getLocalBounds());
        for (auto unused : state) {
            (void)unused;
            shown.draw(everything);
        }
    }
    setResourceFolder({});
}

/// History, both meters, two knobs with their readouts. Ticks come 30 ms apart, as they do in use:
/// the history is as full as it gets.
void benchEditorSoundingTick(benchmark::State& state) {
    constexpr auto interval = std::chrono::milliseconds(30);
    const juce::ScopedJuceInitialiser_GUI toolkit;
    setResourceFolder(juce::File(BROLT_VST3_BUNDLE).getChildFile("Contents/Resources"));
    {
        ShownEditor shown;
        juce::RectangleList<int> changed;
        for (const auto& area : {shown.areaOf("wind"), shown.areaOf("metr"), shown.areaOf("mtr2"),
                                 shown.areaOf("sfre"), shown.areaOf("dsfr"), shown.areaOf("Sfre"),
                                 shown.areaOf("Dsfr")})
            changed.add(area);
        double position = 0.0;
        auto next = Clock::now();
        for (auto unused : state) {
            (void)unused;
            next += interval;
            std::this_thread::sleep_until(next);
            const auto begin = Clock::now();
            shown.automate(position += 0.1);
            shown.editor.tick();
            shown.draw(changed);
            state.SetIterationTime(Seconds(Clock::now() - begin).count());
        }
    }
    setResourceFolder({});
}

} // namespace

void registerDisplayBenchmarks() {
    constexpr int ticksOfFullHistory = 130;
    benchmark::RegisterBenchmark("BM_EditorRepaint120", benchEditorRepaint);
    benchmark::RegisterBenchmark("BM_EditorSoundingTick", benchEditorSoundingTick)
        ->UseManualTime()
        ->Iterations(ticksOfFullHistory);
}
