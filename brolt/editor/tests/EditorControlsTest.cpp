// SPDX-License-Identifier: GPL-3.0-or-later
// Using the product's editor: every control writes its parameter as its taper says, and shows what
// the parameter is.
#include "brolt/editor/tests/support/BroltEditorTest.h"
#include "brolt/editor/tests/support/PictureDifference.h"
#include "widgets/buttons/QMToggleButton.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMKnobStripWidget.h"

#include <algorithm>
#include <cmath>

namespace {

enum class Taper { linear, logarithmic };

struct Control {
    std::string id;
    double minimum;
    double maximum;
    double defaultValue;
    Taper taper;
    const char* typed; ///< into the readout
    double typedValue;
    const char* shown; ///< the readout's text for that

    [[nodiscard]] double valueAt(double position) const {
        return taper == Taper::linear ? minimum + (maximum - minimum) * position
                                      : minimum * std::pow(maximum / minimum, position);
    }
};

// clang-format off
const std::vector<Control>& controls() {
    static const std::vector<Control> all{
        {"afre",   1.0,  440.0, 100.0, Taper::logarithmic, "123.45", 123.45, "123.5"},
        {"sfre",   1.0,  440.0,  60.0, Taper::logarithmic, "61",      61.0,  "61.00"},
        {"dafr",   1.0,  440.0, 200.0, Taper::logarithmic, "1k",     440.0,  "440.0"},
        {"dsfr",   1.0,  440.0, 120.0, Taper::logarithmic, "99,99",   99.99, "99.99"},
        {"mgan", -60.0,    6.0,   0.0, Taper::linear,      "-7,25",   -7.25, "-7.25"},
        {"dmgn", -60.0,    6.0, -12.0, Taper::linear,      "-61",    -60.0,  "-60.00"},
        {"attk",   1.0,  100.0,   2.0, Taper::logarithmic, "55.5 ms", 55.5 / 1000.0, "1.00"},
        {"rlse",   5.0, 1000.0, 140.0, Taper::logarithmic, "0.5k",   500.0,  "500.0"},
        {"patt",   1.0,  100.0,   2.0, Taper::logarithmic, "12.5",    12.5,  "12.50"},
        {"prls",   5.0, 1000.0, 140.0, Taper::logarithmic, "1000",  1000.0,  "1.00k"},
        {"wetd",   0.0,  100.0, 100.0, Taper::linear,      "33.3",    33.3,  "33.30"},
        {"gain", -24.0,   24.0,   0.0, Taper::linear,      "99",      24.0,  "24.00"},
    };
    return all;
}

// clang-format on

class EditorControls : public BroltEditorTest {
protected:
    EditorControls() {
        open();
        window.emplace(*editor);
    }

    ~EditorControls() override { window.reset(); }

    [[nodiscard]] QMParameterControlWidget& control(const Control& of) const {
        return widget<QMParameterControlWidget>(of.id);
    }

    [[nodiscard]] double value(const Control& of) { return instance->value(codeOf(of.id)); }

    void set(const Control& of, double plain) { instance->set(codeOf(of.id), plain); }

    /// Whole pixels.
    [[nodiscard]] juce::Point<float> middleOf(const Control& of) const {
        return control(of).getBounds().getCentre().toFloat();
    }

    [[nodiscard]] juce::Point<float> middleOfReadout(const Control& of) const {
        const QMParameterReadoutWidget& readout = readoutOf(of.id);
        return (readout.getFrameArea() + readout.getPosition()).toFloat().getCentre();
    }

    std::optional<TestWindow> window;
};

TEST_F(EditorControls, followADragByAPartOfTheirTravel) {
    for (const Control& tested : controls()) {
        const auto* const fader = dynamic_cast<const QMFaderWidget*>(&control(tested));
        const double perPixel = fader == nullptr ? 0.004 : 1.0 / fader->getTrackLength();
        set(tested, tested.valueAt(0.4));
        window->press(middleOf(tested));
        window->dragBy(0.0F, -25.0F);
        window->release();
        EXPECT_NEAR(value(tested), tested.valueAt(0.4 + 25.0 * perPixel),
                    1.0e-4 * (tested.maximum - tested.minimum))
            << tested.id;
        EXPECT_FALSE(instance->get().isTouched(instance->index(codeOf(tested.id)))) << tested.id;
    }
}

TEST_F(EditorControls, followADragByLessWithControl) {
    for (const Control& tested : controls()) {
        const auto* const fader = dynamic_cast<const QMFaderWidget*>(&control(tested));
        const double perPixel = fader == nullptr ? 0.001 : 0.3 / fader->getTrackLength();
        set(tested, tested.valueAt(0.4));
        window->press(middleOf(tested), juce::ModifierKeys::ctrlModifier);
        window->dragBy(0.0F, 40.0F);
        window->release();
        EXPECT_NEAR(value(tested), tested.valueAt(0.4 - 40.0 * perPixel),
                    1.0e-4 * (tested.maximum - tested.minimum))
            << tested.id;
    }
}

TEST_F(EditorControls, goNoFurtherThanTheirEnds) {
    for (const Control& tested : controls()) {
        window->press(control(tested));
        window->dragBy(0.0F, -2000.0F);
        window->release();
        EXPECT_FLOAT_EQ(static_cast<float>(value(tested)), static_cast<float>(tested.maximum))
            << tested.id;
        window->press(control(tested));
        window->dragBy(0.0F, 2000.0F);
        window->release();
        EXPECT_FLOAT_EQ(static_cast<float>(value(tested)), static_cast<float>(tested.minimum))
            << tested.id;
    }
}

TEST_F(EditorControls, goBackToTheirDefaultsWithADoubleClick) {
    for (const Control& tested : controls()) {
        set(tested, tested.valueAt(0.3));
        window->doubleClick(control(tested));
        EXPECT_EQ(value(tested), tested.defaultValue) << tested.id;
        set(tested, tested.valueAt(0.3));
        window->click(control(tested), juce::ModifierKeys::altModifier);
        EXPECT_EQ(value(tested), tested.defaultValue) << tested.id << " with Alt";
    }
}

TEST_F(EditorControls, followTheWheel) {
    for (const Control& tested : controls()) {
        set(tested, tested.valueAt(0.5));
        window->wheel(control(tested), 0.0F, 1.0F);
        EXPECT_NEAR(value(tested), tested.valueAt(0.52), 1.0e-4 * (tested.maximum - tested.minimum))
            << tested.id;
        window->wheel(control(tested), 0.0F, -1.0F, juce::ModifierKeys::ctrlModifier);
        EXPECT_NEAR(value(tested), tested.valueAt(0.518),
                    1.0e-4 * (tested.maximum - tested.minimum))
            << tested.id;
    }
}

TEST_F(EditorControls, takeWhatIsTypedIntoTheirReadouts) {
    for (const Control& tested : controls()) {
        window->click(middleOfReadout(tested));
        ASSERT_TRUE(readoutOf(tested.id).isEditing()) << tested.id;
        window->type(tested.typed);
        window->key(juce::KeyPress(juce::KeyPress::returnKey));
        ASSERT_TRUE(runPendingMessages());
        EXPECT_FALSE(readoutOf(tested.id).isEditing()) << tested.id;
        const double wanted = std::clamp(tested.typedValue, tested.minimum, tested.maximum);
        EXPECT_NEAR(value(tested), wanted, 1.0e-9) << tested.id;
        EXPECT_EQ(readoutOf(tested.id).getDisplayText(), tested.shown) << tested.id;
        EXPECT_NEAR(control(tested).getSlotValue(0), wanted, 1.0e-4 * std::abs(wanted))
            << tested.id;
    }
}

TEST_F(EditorControls, showWhatTheHostSets) {
    for (const Control& tested : controls()) {
        const double plain = tested.valueAt(0.8);
        const juce::Image before = pictureOf(control(tested));
        set(tested, plain);
        EXPECT_NEAR(control(tested).getValue(), 0.8F, 1.0e-5F) << tested.id;
        EXPECT_NEAR(readoutOf(tested.id).getSlotValue(0), plain, 1.0e-9) << tested.id;
        const PictureDifference seen =
            differenceOf(before, pictureOf(control(tested)), control(tested).getLocalBounds());
        EXPECT_GT(seen.inside, 50) << tested.id;
        set(tested, std::clamp(tested.typedValue, tested.minimum, tested.maximum));
        EXPECT_EQ(readoutOf(tested.id).getDisplayText(), tested.shown) << tested.id;
    }
}

TEST_F(EditorControls, turnTheirOscillatorsOffAndOn) {
    for (const char* const id : {"osc1", "osc2"}) {
        const auto& button = widget<QMToggleButton>(std::string(id));
        ASSERT_EQ(button.getState(), 1) << id;
        window->click(button);
        EXPECT_EQ(instance->value(codeOf(id)), 0.0) << id;
        EXPECT_EQ(button.getState(), 0) << id;
        window->click(button);
        EXPECT_EQ(instance->value(codeOf(id)), 1.0) << id;
        instance->set(codeOf(id), 0.0);
        EXPECT_EQ(button.getState(), 0) << id << ", set by the host";
    }
}

TEST_F(EditorControls, areTheOnlyOnesThatMove) {
    for (const Control& tested : controls()) {
        std::vector<double> before;
        for (const Control& other : controls())
            before.push_back(value(other));
        window->wheel(control(tested), 0.0F, -1.0F);
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_EQ(value(controls()[i]) != before[i], controls()[i].id == tested.id)
                << controls()[i].id << " after " << tested.id;
    }
}

TEST_F(EditorControls, areTheSameForOneChannel) {
    window.reset();
    open(mono);
    window.emplace(*editor);
    const Control& tested = controls().front();
    set(tested, tested.valueAt(0.4));
    window->press(control(tested));
    window->dragBy(25.0F, 0.0F);
    window->release();
    EXPECT_NEAR(value(tested), tested.valueAt(0.5), 0.01);
}

} // namespace
