// SPDX-License-Identifier: GPL-3.0-or-later
// The way of a knob's turn from the mouse to the sound, with everything of it that a host sees. The
// undo history is none of that: the tests of the editor's own layer have it.
#include "brolt/library/tests/support/AttachedEditor.h"
#include "brolt/library/tests/support/EditRecorder.h"
#include "brolt/library/tests/support/ParameterRows.h"

#include <cmath>
#include <thread>

using namespace std::chrono_literals;
using Steinberg::kResultOk;
using Steinberg::tresult;

namespace {

constexpr Vst::ParamID attackFrequency = 1; // 'afre'
constexpr double startFrequency = 20.0;     // Hz

/// What a pixel up or to the right moves a knob by, of its travel.
constexpr double travelOfPixel = 0.004;

/// Values beside the lines, to all their digits.
class ValueRecorder : public EditRecorder {
public:
    std::vector<double> values;

    tresult PLUGIN_API performEdit(Vst::ParamID id, Vst::ParamValue value) override {
        values.push_back(value);
        return EditRecorder::performEdit(id, value);
    }

    [[nodiscard]] std::size_t count(const std::string& line) const {
        return static_cast<std::size_t>(std::count(lines.begin(), lines.end(), line));
    }

    /// Nothing but values of the parameter between one beginning and one end.
    [[nodiscard]] ::testing::AssertionResult hasOneGesture(Vst::ParamID id) const {
        const std::string name = std::to_string(id);
        const bool isEnclosed =
            lines.size() >= 2 && lines.front() == "begin " + name && lines.back() == "end " + name;
        if (isEnclosed &&
            std::all_of(lines.begin() + 1, lines.end() - 1, [&](const std::string& line) {
                return line.starts_with("perform " + name + " ");
            }))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "the host heard" << heard();
    }

    /// Each ends before the next begins, and no value is outside.
    [[nodiscard]] ::testing::AssertionResult hasWholeGestures(Vst::ParamID id) const {
        const std::string name = std::to_string(id);
        bool isOpen = false;
        for (const std::string& line : lines) {
            const bool begins = line == "begin " + name;
            if (begins == isOpen)
                return ::testing::AssertionFailure() << "the host heard" << heard();
            isOpen = line != "end " + name;
        }
        if (isOpen)
            return ::testing::AssertionFailure() << "the host heard" << heard();
        return ::testing::AssertionSuccess();
    }

    [[nodiscard]] std::string heard() const {
        std::string text;
        for (const std::string& line : lines)
            text += "\n  " + line;
        return text;
    }

    void forget() {
        lines.clear();
        values.clear();
    }
};

double travelOf(double frequency) {
    return positionOf(parameterRows.at(attackFrequency), frequency);
}

class KnobTurn : public ::testing::Test {
protected:
    ValueRecorder host;
    std::unique_ptr<LibraryInstance> instance;
    std::unique_ptr<AttachedEditor> editor;
    EditorArea knob;
    EditorArea readout;

    void SetUp() override {
        if (const std::string reason = EditorWindow::obstacleToInput(); !reason.empty())
            GTEST_SKIP() << reason;
        instance = std::make_unique<LibraryInstance>();
        instance->set("afre", startFrequency);
        instance->controller().setComponentHandler(&host);
        editor = std::make_unique<AttachedEditor>(*instance);
        const EditorKnob found = editor->view.knobOf(attackFrequency);
        knob = found.knob;
        readout = found.readout;
    }

    ~KnobTurn() override {
        editor.reset();
        instance.reset();
        EXPECT_EQ(host.references(), 0U);
    }

    ::testing::AssertionResult hears(const std::string& line, std::size_t times = 1) {
        if (editor->driveUntil([&] { return host.count(line) >= times; }))
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure() << "the host heard" << host.heard();
    }

    void press() {
        editor->window.press(knob.centre());
        EXPECT_TRUE(hears("begin 1"));
    }

    /// The window system may drop movements that come too fast; the last one must not be.
    void dragUpBy(int pixels) {
        const double wanted = travelOf(startFrequency) + travelOfPixel * pixels;
        EXPECT_TRUE(editor->driveUntil([&] {
            editor->window.drag(knob.centre().movedUp(pixels));
            editor->frame.drive();
            return !host.values.empty() && std::abs(host.values.back() - wanted) < 1e-5;
        })) << "the last value is "
            << (host.values.empty() ? -1.0 : host.values.back()) << " instead of " << wanted;
    }

    void release(int pixels = 0) {
        editor->window.release(knob.centre().movedUp(pixels));
        EXPECT_TRUE(hears("end 1"));
    }

    [[nodiscard]] double value() { return instance->normalised(attackFrequency); }

    /// What an instance renders that a host has given the value, from rest.
    [[nodiscard]] Audio expected(double normalised, const Audio& input) const {
        LibraryInstance other;
        other.setNormalised(attackFrequency, normalised);
        other.start();
        return other.render(input);
    }
};

} // namespace

TEST_F(KnobTurn, isAGestureOfValuesToTheHost) {
    press();
    dragUpBy(10);
    dragUpBy(25);
    dragUpBy(50);
    release(50);
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
    // At 20 Hz of 1 to 440 the travel is ln 20 / ln 440; 50 pixels are a fifth of it.
    const double travel = std::log(20.0) / std::log(440.0) + 0.2;
    EXPECT_NEAR(host.values.back(), travel, 1e-5);
    EXPECT_TRUE(std::is_sorted(host.values.begin(), host.values.end()));
    EXPECT_NEAR(value(), host.values.back(), 1e-6);
    EXPECT_NEAR(instance->plain("afre"), std::exp(travel * std::log(440.0)), 0.01);
}

TEST_F(KnobTurn, setsTheInstanceWithEachValue) {
    press();
    for (const int pixels : {10, 20, -10}) {
        dragUpBy(pixels);
        EXPECT_NEAR(value(), travelOf(startFrequency) + travelOfPixel * pixels, 1e-5);
    }
    release(-10);
}

TEST_F(KnobTurn, isHeardInTheNextBlock) {
    instance->start();
    press();
    dragUpBy(50);
    const Audio input = testAudio(2, 2000);
    const Audio before = expected(travelOf(startFrequency), input);
    const Audio output = instance->render(input);
    EXPECT_TRUE(sameBits(output, expected(value(), input)));
    EXPECT_FALSE(sameBits(output, before));
    release(50);
}

TEST_F(KnobTurn, withoutAMovementChangesNothing) {
    const double before = value();
    press();
    release();
    EXPECT_EQ(host.lines, (std::vector<std::string>{"begin 1", "end 1"}));
    EXPECT_EQ(value(), before); // to the last bit
}

TEST_F(KnobTurn, stopsAtTheEndsOfTheRange) {
    press();
    const auto comesTo = [&](int pixels, double limit) {
        return editor->driveUntil([&] {
            editor->window.drag(knob.centre().movedUp(pixels));
            editor->frame.drive();
            return value() == limit;
        });
    };
    EXPECT_TRUE(comesTo(2000, 1.0));
    EXPECT_TRUE(comesTo(-2000, 0.0));
    release(-2000);
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
}

TEST_F(KnobTurn, endsWithTheWindowThatIsClosedInItsMidst) {
    press();
    dragUpBy(20);
    editor.reset();
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
}

TEST_F(KnobTurn, endsWithTheViewThatIsTakenOutOfItsWindow) {
    press();
    dragUpBy(20);
    ASSERT_EQ(editor->view.plugView().removed(), kResultOk);
    EXPECT_EQ(host.count("end 1"), 1U);
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
}

TEST_F(KnobTurn, isShownByTheKnob) {
    const EditorPicture knobBefore = editor->view.picture(knob);
    const EditorPicture readoutBefore = editor->view.picture(readout);
    press();
    dragUpBy(50);
    release(50);
    EXPECT_TRUE(editor->view.picture(knob) != knobBefore);
    EXPECT_TRUE(editor->view.picture(readout) != readoutBefore);
}

TEST_F(KnobTurn, isNotDisturbedByAutomation) {
    press();
    dragUpBy(50);
    const EditorPicture held = editor->view.picture(knob);
    const EditorArea other = editor->view.areasOf(2).at(0);
    const EditorPicture otherBefore = editor->view.picture(other);
    std::thread automation([&] {
        instance->setNormalised(attackFrequency, 0.1);
        instance->setNormalised(2, 0.1);
    });
    // Both come together; when the one has been shown, the other has been kept back.
    EXPECT_TRUE(editor->changes(other, otherBefore));
    automation.join();
    EXPECT_TRUE(editor->view.picture(knob) == held);
    EXPECT_NEAR(value(), 0.1, 1e-9); // the sound follows all the same

    release(50);
    EXPECT_TRUE(editor->changes(knob, held, 1s));
    EXPECT_NEAR(value(), 0.1, 1e-9);
}

TEST_F(KnobTurn, goesOnFromTheHandAfterAutomation) {
    press();
    dragUpBy(20);
    std::thread([&] { instance->setNormalised(attackFrequency, 0.05); }).join();
    dragUpBy(40);
    EXPECT_NEAR(value(), travelOf(startFrequency) + travelOfPixel * 40, 1e-5);
    release(40);
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
}

TEST_F(KnobTurn, ofTheWheelIsAGestureThatEndsByItself) {
    editor->window.wheelUp(knob.centre());
    EXPECT_TRUE(hears("end 1"));
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
    ASSERT_EQ(host.values.size(), 1U);
    EXPECT_GT(host.values[0], travelOf(startFrequency) + 0.001);
    EXPECT_LT(host.values[0], travelOf(startFrequency) + 0.05);
    EXPECT_NEAR(value(), host.values[0], 1e-6);
}

TEST_F(KnobTurn, byADoubleClickGoesToTheDefault) {
    // Two clicks, or more on a machine so busy that the second one comes too late to count.
    for (std::size_t click = 1; click <= 20 && host.values.empty(); ++click) {
        editor->window.press(knob.centre());
        editor->window.release(knob.centre());
        EXPECT_TRUE(hears("end 1", click));
    }
    EXPECT_TRUE(host.hasWholeGestures(attackFrequency));
    ASSERT_EQ(host.values.size(), 1U);
    EXPECT_NEAR(host.values[0], travelOf(100.0), 1e-6);
    EXPECT_NEAR(instance->plain("afre"), 100.0, 1e-3);
}

TEST_F(KnobTurn, byANumberTypedIntoTheReadoutGoesThere) {
    // The window manager may give the keyboard to some other window: once more then.
    for (int attempt = 0; attempt < 20 && host.lines.empty(); ++attempt) {
        const EditorPicture before = editor->view.picture(readout);
        if (!editor->click(readout.centre()) || !editor->changes(readout, before, 500ms))
            continue;
        for (const char digit : {'2', '5', '0'})
            editor->type(keyOfDigit(digit));
        editor->type(EditorKey::enter);
        (void)editor->driveUntil([&] { return host.count("end 1") != 0; }, 2s);
    }
    EXPECT_TRUE(host.hasOneGesture(attackFrequency));
    ASSERT_EQ(host.values.size(), 1U);
    EXPECT_NEAR(host.values[0], travelOf(250.0), 1e-6);
    EXPECT_NEAR(instance->plain("afre"), 250.0, 1e-3);
}

TEST_F(KnobTurn, byANumberBeginsWithTheFirstClickHoweverQuick) {
    // Each time in a window that is new and has never had the keyboard.
    for (int attempt = 0; attempt < 5 && host.lines.empty(); ++attempt) {
        editor = nullptr;
        editor = std::make_unique<AttachedEditor>(*instance);
        editor->window.press(readout.centre());
        editor->window.release(readout.centre());
        (void)editor->driveUntil([&] { return editor->window.childHasKeyboard(); }, 500ms);
        editor->type(keyOfDigit('9'));
        editor->type(EditorKey::enter);
        (void)editor->driveUntil([&] { return host.count("end 1") != 0; }, 500ms);
    }
    ASSERT_EQ(host.values.size(), 1U);
    EXPECT_NEAR(host.values[0], travelOf(9.0), 1e-6);
}

TEST_F(KnobTurn, ofASwitchIsOneGesture) {
    const EditorArea toggle = editor->view.areasOf(3).at(0);
    editor->window.press(toggle.centre());
    editor->window.release(toggle.centre());
    EXPECT_TRUE(hears("end 3"));
    EXPECT_EQ(host.lines, (std::vector<std::string>{"begin 3", "perform 3 0", "end 3"}));
    EXPECT_EQ(instance->normalised(3), 0.0);
}
