// SPDX-License-Identifier: GPL-3.0-or-later
// The road of one knob turn: from the mouse over gesture and value to the record that the processor
// starts to use, and back with one undo.
#include "QMShell/gui/QMShell_GUI.h"
#include "QMShell/gui/QMShell_ViewComponent.h"
#include "QMShell/gui/tests/support/HostedPlugIn.h"
#include "brolt/model/QMBrolt_PlugIn.h"
#include "tests/support/toolkit/TestWindow.h"
#include "tests/support/toolkit/ToolkitTest.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/generic/GenericEditorContent.h"
#include "widgets/ui/QMPlugInGenericUI.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

using Calls = std::vector<std::string>;

/// Does with a gesture what an adapter does with it, and writes down what its host would hear.
class AdapterLikeHolder final : public QMShell_GUI {
public:
    explicit AdapterLikeHolder(HostedPlugIn& plugInOfHost)
        : QMShell_GUI([](INoxPlugIn& plugIn, IQMPlugInUIHost* host, PlugInUINumber) {
            return std::make_unique<QMPlugInGenericUI>(
                plugIn, host,
                [](const GenericEditorDescription& description) {
                    return std::make_unique<GenericEditorContent>(description);
                },
                "");
        })
        , hosted(plugInOfHost) {}

    ~AdapterLikeHolder() override { setView(nullptr); }

    [[nodiscard]] std::recursive_mutex* controlLock() override {
        return &hosted.environment.controlLock();
    }

    [[nodiscard]] INoxPlugIn* plugIn() override { return hosted.get(); }

    bool setViewContainerSize(std::int32_t, std::int32_t) override { return true; }

    void setHelpEnabled(bool) override {}

    [[nodiscard]] double sampleRate() override { return 44100.0; }

    [[nodiscard]] double tempo() override { return 120.0; }

    [[nodiscard]] std::int32_t inputFormat() override { return 3; }

    [[nodiscard]] std::int32_t outputFormat() override { return 3; }

    void setParameterValue(FourCharCode id, double plain) override {
        const std::scoped_lock lock(*controlLock());
        INoxPlugIn& instance = *hosted.get();
        const std::int32_t index = instance.indexOfID(id);
        const double normalised = instance.plainToNormalised(index, plain);
        instance.setParameterValue(index, instance.normalisedToPlain(index, normalised));
        edits.push_back("perform " + fourCharText(id));
        performed.push_back(normalised);
    }

    void parameterChanged(FourCharCode) override {}

    [[nodiscard]] float parameterValue(FourCharCode) override { return 0.0f; }

    void beginParameterGesture(FourCharCode id) override {
        edits.push_back("begin " + fourCharText(id));
    }

    void endParameterGesture(FourCharCode id) override {
        edits.push_back("end " + fourCharText(id));
    }

    Calls edits;
    std::vector<double> performed;

private:
    HostedPlugIn& hosted;
};

class KnobRoad : public ToolkitTest {
protected:
    KnobRoad() {
        atRest(hosted);
        view = holder.createView();
        window.emplace(*view);
        knob = findKnob(*view);
    }

    /// At the rate that records are computed for.
    static QMBrolt_PlugIn& atRest(const HostedPlugIn& plugIn) {
        const double rate = 44100.0;
        plugIn.get()->setSampleRate(&rate);
        return dynamic_cast<QMBrolt_PlugIn&>(*plugIn.get());
    }

    [[nodiscard]] QMBrolt_PlugIn& instance() const {
        return dynamic_cast<QMBrolt_PlugIn&>(*hosted.get());
    }

    /// Plain, of the first oscillator's attack frequency.
    [[nodiscard]] double value() const { return instance().parameterValue(index()); }

    [[nodiscard]] std::int32_t index() const { return instance().indexOfID(afre); }

    /// What the processor uses once everything that was set has reached it.
    [[nodiscard]] static Coefficients recordAfterABlock(QMBrolt_PlugIn& plugIn) {
        std::array<float, 64> silence{};
        std::array<float, 64> left{};
        std::array<float, 64> right{};
        std::array<float*, 2> in{silence.data(), silence.data()};
        std::array<float*, 2> out{left.data(), right.data()};
        const NoxProcessBlock input{64, 2, 0, in.data()};
        const NoxProcessBlock output{64, 2, 0, out.data()};
        // Records that came before are taken one a block.
        for (int block = 0; block < 8; ++block)
            plugIn.process(input, output);
        return *plugIn.coefficientsInUse();
    }

    static QMKnobStripWidget* findKnob(juce::Component& component) {
        for (juce::Component* const child : component.getChildren()) {
            auto* const candidate = dynamic_cast<QMKnobStripWidget*>(child);
            if (candidate != nullptr && candidate->getParameterID(0) == afre)
                return candidate;
            if (QMKnobStripWidget* const below = findKnob(*child))
                return below;
        }
        return nullptr;
    }

    static constexpr FourCharCode afre = fourCharCode("afre");

    HostedPlugIn hosted;
    AdapterLikeHolder holder{hosted};
    QMShell_ViewComponent* view = nullptr;
    std::optional<TestWindow> window;
    QMKnobStripWidget* knob = nullptr;
};

} // namespace

TEST_F(KnobRoad, OneTurnIsOneGestureOneUndoGroupAndOneRecordInTheEnd) {
    ASSERT_NE(knob, nullptr);
    const double before = value();
    ASSERT_EQ(before, 100.0);
    const double positionBefore = instance().normalisedValue(index());

    window->press(*knob);
    EXPECT_EQ(holder.edits, Calls{"begin afre"});
    EXPECT_TRUE(instance().isTouched(index()));
    window->dragBy(0.0f, -10.0f);
    window->dragBy(5.0f, -10.0f);
    // 25 pixels at 0.004.
    EXPECT_NEAR(instance().normalisedValue(index()), positionBefore + 0.1, 1e-6);
    window->release();

    EXPECT_EQ(holder.edits, (Calls{"begin afre", "perform afre", "perform afre", "end afre"}));
    EXPECT_NEAR(holder.performed.at(0), positionBefore + 0.04, 1e-6);
    EXPECT_NEAR(holder.performed.at(1), positionBefore + 0.1, 1e-6);
    EXPECT_FALSE(instance().isTouched(index()));
    const double turned = value();
    EXPECT_NEAR(turned, std::pow(440.0, positionBefore + 0.1), 0.01) << "1 to 440 Hz, logarithmic";

    // The record of a twin that was set, not turned.
    const Coefficients inUse = recordAfterABlock(instance());
    HostedPlugIn twin;
    const Coefficients untouched = recordAfterABlock(atRest(twin));
    atRest(twin).setParameterValue(index(), turned);
    const Coefficients wanted = recordAfterABlock(atRest(twin));
    EXPECT_EQ(inUse.osc1AttackT, wanted.osc1AttackT);
    EXPECT_EQ(inUse.osc1SustainT, wanted.osc1SustainT);
    EXPECT_NE(inUse.osc1AttackT, untouched.osc1AttackT);
    EXPECT_EQ(inUse.osc1SustainT, untouched.osc1SustainT);

    ASSERT_TRUE(instance().canUndo());
    instance().undo();
    EXPECT_EQ(value(), before);
    EXPECT_FALSE(instance().canUndo()) << "the whole turn was one group";
    instance().redo();
    EXPECT_EQ(value(), turned);
}

TEST_F(KnobRoad, WhatUndoBringsBackTheKnobShows) {
    ASSERT_NE(knob, nullptr);
    const double shown = knob->getSlotValue(0);
    window->press(*knob);
    window->dragBy(0.0f, -50.0f);
    window->release();
    EXPECT_GT(knob->getSlotValue(0), shown + 1.0);
    instance().undo();
    EXPECT_NEAR(knob->getSlotValue(0), shown, 0.001);
}

TEST_F(KnobRoad, AutomationWhileItIsHeldMovesTheInstanceAndNotTheKnob) {
    ASSERT_NE(knob, nullptr);
    window->press(*knob);
    window->dragBy(0.0f, -10.0f);
    const double held = knob->getSlotValue(0);
    {
        const std::scoped_lock lock(hosted.environment.controlLock());
        instance().setParameterValue(index(), 20.0);
    }
    EXPECT_EQ(knob->getSlotValue(0), held);
    EXPECT_NEAR(value(), 20.0, 1e-9);
    window->release();
    EXPECT_NEAR(knob->getSlotValue(0), 20.0, 0.001) << "once let go, it follows";
}

TEST_F(KnobRoad, AnEditorThatGoesInTheMidstOfAGestureEndsIt) {
    ASSERT_NE(knob, nullptr);
    window->press(*knob);
    window->dragBy(0.0f, -10.0f);
    view->closeUI();
    EXPECT_EQ(holder.edits.back(), "end afre");
    EXPECT_FALSE(instance().isTouched(index()));
    window->release();
    ASSERT_TRUE(instance().canUndo());
    instance().undo();
    EXPECT_EQ(value(), 100.0);
}
