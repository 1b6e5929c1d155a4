// SPDX-License-Identifier: GPL-3.0-or-later
// The targets between controls and the plug-in UI.
#include "widgets/notifications/PluginUIParameterMultipleNT.h"
#include "widgets/notifications/PluginUIParameterNT.h"
#include "widgets/notifications/QMNotificationCenter.h"
#include "widgets/notifications/tests/support/RecordingUI.h"

#include <gtest/gtest.h>

namespace {

/// Tells when it goes.
class Watched final : public PluginUIParameterTarget {
public:
    Watched(IQMPlugInUIParameters& plugInUI, bool& goneFlag)
        : PluginUIParameterTarget(plugInUI)
        , isGone(goneFlag) {}

    ~Watched() override { isGone = true; }

private:
    bool& isGone;
};

using Changes = std::vector<RecordingUI::Change>;

TEST(PluginUIParameterTarget, writesWhatTheControlWritesToTheUI) {
    RecordingUI ui;
    PluginUIParameterNT target(ui, 5);
    target.setValue(5, 0.25);
    EXPECT_EQ(ui.written, (Changes{{5, 0.25}}));
    EXPECT_EQ(target.parameterIndex(), 5U);
}

TEST(PluginUIParameterTarget, writesWhatIsNotifiedUnderNumberZeroAndNothingElse) {
    RecordingUI ui;
    QMNotificationCenter center;
    center.registerTarget(*new PluginUIParameterNT(ui, 5));
    center.postNotification(0, {5, 1.5});
    center.postNotification(1, {5, 2.5});
    center.notify(0);
    EXPECT_EQ(ui.written, (Changes{{5, 1.5}}));
}

TEST(PluginUIParameterTarget, goesWhenItIsUnregistered) {
    RecordingUI ui;
    bool isGone = false;
    QMNotificationCenter center;
    auto* const target = new Watched(ui, isGone);
    center.registerTarget(*target);
    EXPECT_FALSE(isGone);
    center.unregisterTarget(*target);
    EXPECT_TRUE(isGone);
}

TEST(PluginUIParameterTarget, goesWhenItsCentreIsTakenFromIt) {
    RecordingUI ui;
    bool isGone = false;
    QMNotificationCenter center;
    auto* const target = new Watched(ui, isGone);
    center.registerTarget(*target);
    target->setNotificationCenter(nullptr);
    EXPECT_TRUE(isGone);
    center.postNotification(0, {1, 1.0});
    EXPECT_EQ(ui.written, Changes{});
}

TEST(PluginUIParameterTarget, goesWithItsCentre) {
    RecordingUI ui;
    bool isGone = false;
    {
        QMNotificationCenter center;
        center.registerTarget(*new Watched(ui, isGone));
    }
    EXPECT_TRUE(isGone);
}

TEST(PluginUIParameterMultipleTarget, keepsTheMapFromSlotToParameter) {
    RecordingUI ui;
    PluginUIParameterMultipleNT target(ui, {{0, 4}, {1, 9}});
    EXPECT_EQ(target.slots().at(1), 9U);
    target.setValue(9, -3.0);
    EXPECT_EQ(ui.written, (Changes{{9, -3.0}}));
}

} // namespace
