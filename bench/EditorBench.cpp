// SPDX-License-Identifier: GPL-3.0-or-later
//
// What the editors cost in a library that is loaded already: opening one up to its first picture;
// a tick of the displays while nothing happens; drawing one knob again at 120 percent.

#include "bench/BenchLibrary.h"
#include "bench/BenchModel.h"
#include "bench/Benchmarks.h"

#include "QMShell/extensions/IQMEditorPicture.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/generic/GenericEditorContent.h"
#include "widgets/ui/QMPlugInGenericUI.h"

#include <benchmark/benchmark.h>
#include <juce_gui_basics/juce_gui_basics.h>

#include <memory>
#include <stdexcept>
#include <vector>

using namespace Steinberg;

DEF_CLASS_IID(IQMEditorPicture)

namespace {

enum class Editor { product, generic };

/// At its own size.
class OpenEditor {
public:
    OpenEditor(LibraryPlugIn& plugIn, Editor which)
        : view(plugIn.createEditor())
        , picture(view) {
        if (!picture ||
            (which == Editor::generic && picture->showGenericEditor(true) != kResultOk) ||
            view->getSize(&size) != kResultOk)
            throw std::runtime_error("the editor has no pictures");
    }

    void draw(std::vector<uint8>& pixels) {
        constexpr std::size_t bytesOfPixel = 4;
        pixels.resize(bytesOfPixel * static_cast<std::size_t>(size.getWidth()) *
                      static_cast<std::size_t>(size.getHeight()));
        if (picture->drawInto(pixels.data(), size.getWidth(), size.getHeight()) != kResultOk)
            throw std::runtime_error("the editor does not draw");
    }

private:
    IPtr<IPlugView> view;
    FUnknownPtr<IQMEditorPicture> picture;
    ViewRect size;
};

void benchEditorOpen(benchmark::State& state, Editor which) {
    const auto module = loadLibrary();
    LibraryPlugIn plugIn(module);
    std::vector<uint8> pixels;
    for (auto unused : state) {
        (void)unused;
        OpenEditor editor(plugIn, which);
        editor.draw(pixels);
    }
}

/// The first in the process: pictures and typefaces are read from the bundle.
void benchEditorFirstOpen(benchmark::State& state) {
    const auto module = loadLibrary();
    std::vector<uint8> pixels;
    for (auto unused : state) {
        (void)unused;
        state.PauseTiming();
        // With the last instance goes what the editors had in common.
        auto plugIn = std::make_unique<LibraryPlugIn>(module);
        state.ResumeTiming();
        {
            OpenEditor editor(*plugIn, Editor::product);
            editor.draw(pixels);
        }
        state.PauseTiming();
        plugIn.reset();
        state.ResumeTiming();
    }
}

/// As the view's timer does it, on the message thread: going through the library would measure the
/// way to that thread.
void benchEditorIdleTick(benchmark::State& state) {
    const juce::ScopedJuceInitialiser_GUI toolkit;
    BenchModel model;
    const auto instance = model.newInstance();
    {
        QMPlugInGenericUI editor(
            *instance, nullptr,
            [](const GenericEditorDescription& description) {
                return std::make_unique<GenericEditorContent>(description);
            },
            "");
        editor.setupAfterCreation();
        for (auto unused : state) {
            (void)unused;
            editor.tick();
        }
    }
    instance->setProcessingHost(nullptr);
}

/// As large as the knobs of the product's editor are at 120 percent, and never twice alike.
void benchKnobRepaint(benchmark::State& state) {
    constexpr int width = 96;
    constexpr int height = 120;
    const juce::ScopedJuceInitialiser_GUI toolkit;
    QMKnobStripWidget knob;
    knob.setMagnification(1.2f);
    knob.setBounds(0, 0, width, height);
    juce::Image picture(juce::Image::ARGB, width, height, true);
    double value = 0.0;
    for (auto unused : state) {
        (void)unused;
        value = value > 0.99 ? 0.0 : value + 0.01;
        knob.setParameterValue(0, value, false);
        juce::Graphics g(picture);
        knob.paintEntireComponent(g, false);
        benchmark::ClobberMemory();
    }
}

} // namespace

void registerEditorBenchmarks() {
    benchmark::RegisterBenchmark("BM_EditorOpen/product", benchEditorOpen, Editor::product)
        ->UseRealTime();
    benchmark::RegisterBenchmark("BM_EditorOpen/generic", benchEditorOpen, Editor::generic)
        ->UseRealTime();
    benchmark::RegisterBenchmark("BM_EditorFirstOpen", benchEditorFirstOpen)->UseRealTime();
    benchmark::RegisterBenchmark("BM_EditorIdleTick", benchEditorIdleTick);
    benchmark::RegisterBenchmark("BM_KnobRepaint120", benchKnobRepaint);
}
