// SPDX-License-Identifier: GPL-3.0-or-later
// How displays follow the sound.
#include "widgets/ui/tests/support/TableEditor.h"

namespace {

class EditorTick : public EditorTest {
protected:
    void SetUp() override {
        describe("metr", ProbeTypes::meter, {}, "Output", {fourCharCode("out ")});
        describe("mtr2", ProbeTypes::meter, {}, "Output", {fourCharCode("out2")});
        describe("wind", ProbeTypes::meter, {}, "Pitches", {fourCharCode("ptch")});
        place("metr", {0, 0, 10, 10});
        place("mtr2", {0, 0, 10, 10});
        place("wind", {0, 0, 10, 10});
        open().setClock([this] { return seconds; });
    }

    void tickAt(double time) {
        seconds = time;
        editor->tick();
    }

    [[nodiscard]] const NoxMeterRecord& recordOf(const char (&id)[5]) const {
        return *editor->widget<ProbeDisplay>(id).bindings.at(0).record;
    }

    double seconds = 0.0;
};

TEST_F(EditorTick, refreshesTheRecordsThatDisplaysAreBoundTo) {
    // Oscillator words 0 to 3; envelope, mean square, peak of the left channel, then of the right.
    instance.metered().analysis = {1, 2, 3, 4, 0.5F, 0.1F, 0.25F, 0.0F, 0.2F, 2.0F};
    tickAt(10.0);
    EXPECT_EQ(recordOf("metr").values[0], 0.0625F) << "the peak's square";
    EXPECT_EQ(recordOf("mtr2").values[0], 4.0F);
    EXPECT_EQ(recordOf("mtr2").values[2], 0.2F);
    EXPECT_EQ(recordOf("wind").values[0], 1.0F);
    EXPECT_EQ(recordOf("wind").values[1], 3.0F);
    EXPECT_EQ(recordOf("wind").index, 2);
}

TEST_F(EditorTick, ticksEveryDisplayThatFollowsClosely) {
    tickAt(10.0);
    tickAt(10.03);
    tickAt(11.0);
    EXPECT_EQ(editor->widget<ProbeDisplay>("metr").ticks, 2);
    EXPECT_EQ(editor->widget<ProbeDisplay>("wind").ticks, 2);
}

TEST_F(EditorTick, skipsTheDisplaysOnceAfterASecond) {
    tickAt(10.0);
    EXPECT_EQ(editor->widget<ProbeDisplay>("metr").ticks, 0) << "the first tick follows none";
    tickAt(11.0);
    EXPECT_EQ(editor->widget<ProbeDisplay>("metr").ticks, 0);
    tickAt(11.99);
    EXPECT_EQ(editor->widget<ProbeDisplay>("metr").ticks, 1);
}

TEST_F(EditorTick, refreshesTheRecordsInASkippedTickToo) {
    tickAt(10.0);
    instance.metered().analysis[6] = 3.0F;
    tickAt(50.0);
    EXPECT_EQ(recordOf("metr").values[0], 9.0F);
}

TEST_F(EditorTick, leavesTheRecordsAsTheyWereWhenTheInstanceIsGone) {
    instance.metered().analysis[6] = 3.0F;
    tickAt(10.0);
    instance.remove();
    tickAt(10.03);
    EXPECT_EQ(recordOf("metr").values[0], 9.0F);
    EXPECT_EQ(editor->widget<ProbeDisplay>("metr").ticks, 1) << "it may have something to let fall";
}

TEST_F(EditorTick, goesByTheToolkitsTimeUntilItIsGivenAnother) {
    TableEditor& ui = open();
    ui.tick();
    ui.tick();
    EXPECT_EQ(ui.widget<ProbeDisplay>("metr").ticks, 1);
}

} // namespace
