// SPDX-License-Identifier: GPL-3.0-or-later
// Long random sequences of edits, undo and redo against the model.
#include "brolt/model/tests/PlugInTestKit.h"
#include "brolt/model/tests/UndoModel.h"

#include "plugin-model/QMParameterValues.h"
#include "presets/record/QMGenericPreset.h"

#ifdef __GLIBC__
#    include <malloc.h>
#endif

namespace {

using QM::SnapshotMode;

class Sequence {
public:
    explicit Sequence(unsigned seed)
        : random(seed) {
        plugIn.selectSnapshot(0, SnapshotMode::store);
        randomiseAll();
        plugIn.selectSnapshot(1, SnapshotMode::store);
        randomiseAll();
        plugIn.clearUndoAndRedo();
        model.state = stateOfInstance();
    }

    void step() {
        switch (pick(12)) {
        case 0:
        case 1:
            gesture(1);
            break;
        case 2:
            gesture(2);
            break;
        case 3:
            nestedGesture();
            break;
        case 4:
            blendGesture();
            break;
        case 5:
            loadPreset();
            break;
        case 6:
            recall(pick(2));
            break;
        case 7:
        case 8:
        case 9:
            undo();
            break;
        case 10:
            redo();
            break;
        default:
            gestureWithUndoInside();
            break;
        }
    }

    [[nodiscard]] UndoModel::State stateOfInstance() const {
        const QM::IQMParameterValues& values = *plugIn.parameterValues();
        UndoModel::State state;
        for (std::int32_t i = 0; i < plugIn.parameterCount(); ++i) {
            state.values.push_back(values.getValue(i));
            state.snapshots[0].push_back(values.snapshotValue(0, i));
            state.snapshots[1].push_back(values.snapshotValue(1, i));
        }
        state.snapshotIds = {values.snapshotPresetId(0), values.snapshotPresetId(1)};
        state.active = values.activeSnapshot();
        state.blend = values.blendCoordinate(false);
        state.presetId = values.currentPresetId();
        return state;
    }

    void expectEqualStates(int number) const {
        const UndoModel::State actual = stateOfInstance();
        const UndoModel::State& expected = model.state;
        ASSERT_EQ(actual.values, expected.values) << lastEdit << ' ' << number;
        ASSERT_EQ(actual.snapshots, expected.snapshots) << lastEdit << ' ' << number;
        ASSERT_EQ(actual.snapshotIds, expected.snapshotIds) << lastEdit << ' ' << number;
        ASSERT_EQ(actual.active, expected.active) << lastEdit << ' ' << number;
        ASSERT_EQ(actual.blend, expected.blend) << lastEdit << ' ' << number;
        ASSERT_EQ(actual.presetId, expected.presetId) << lastEdit << ' ' << number;
        const ZulUndoManager& history = plugIn.parameterValues()->undoManager();
        ASSERT_EQ(history.undoCount(), model.undoSteps.size()) << lastEdit << ' ' << number;
        ASSERT_EQ(history.redoCount(), model.redoSteps.size()) << lastEdit << ' ' << number;
    }

    void undo() {
        lastEdit = "undo";
        plugIn.undo();
        model.undo();
    }

    void redo() {
        lastEdit = "redo";
        plugIn.redo();
        model.redo();
    }

    PlugInUnderTest<2> test;
    QMBrolt_PlugIn& plugIn = test.plugIn;

private:
    int pick(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random); }

    std::int32_t anyParameter() { return pick(plugIn.parameterCount()); }

    double anyValue(std::int32_t index) {
        std::uniform_real_distribution<double> normalised(0.0, 1.0);
        return plugIn.normalisedToPlain(index, normalised(random));
    }

    void randomiseAll() {
        for (std::int32_t i = 0; i < plugIn.parameterCount(); ++i)
            plugIn.setParameterValue(i, anyValue(i));
    }

    void change(std::int32_t index) {
        const double value = anyValue(index);
        plugIn.setParameterValue(index, value);
        model.change(index, plugIn.parameterValue(index));
    }

    void begin(std::int32_t index) {
        plugIn.beginTouch(index);
        model.beginGesture(index);
    }

    void end(std::int32_t index) {
        plugIn.endTouch(index);
        model.endGesture();
    }

    void gesture(int moves) {
        lastEdit = "gesture";
        const std::int32_t index = anyParameter();
        begin(index);
        for (int i = 0; i < moves; ++i)
            change(index);
        end(index);
    }

    /// Two parameters held together, one of them twice.
    void nestedGesture() {
        lastEdit = "nested gesture";
        const std::int32_t first = anyParameter();
        const std::int32_t second = (first + 1 + pick(14)) % 15;
        begin(first);
        plugIn.beginTouch(first);
        change(first);
        begin(second);
        change(second);
        plugIn.endTouch(first);
        end(first);
        change(second);
        end(second);
    }

    void gestureWithUndoInside() {
        lastEdit = "gesture with undo inside";
        const std::int32_t first = anyParameter();
        const std::int32_t second = (first + 1 + pick(14)) % 15;
        begin(first);
        change(first);
        begin(second);
        change(second);
        plugIn.undo();
        model.undo();
        if (pick(2) == 0) {
            plugIn.redo();
            model.redo();
        }
        change(first);
        end(second);
        end(first);
    }

    void blendGesture() {
        lastEdit = "blend";
        plugIn.beginBlendGesture();
        model.beginBlendGesture();
        for (int moves = pick(3); moves >= 0; --moves) {
            const float x = static_cast<float>(pick(5)) / 4.0f;
            plugIn.setBlend(x, 0.5f);
            model.moveBlend(x);
        }
        plugIn.endBlendGesture();
        model.endGesture();
    }

    void loadPreset() {
        lastEdit = "preset";
        QMGenericPreset record = plugIn.getStateRecord(StateExtent::parameters);
        record.uniqueId = 1000u + static_cast<unsigned>(pick(1000));
        std::vector<double> values;
        for (std::int32_t i = 0; i < plugIn.parameterCount(); ++i) {
            values.push_back(anyValue(i));
            record.values[plugIn.idOfIndex(i)] = values.back();
        }
        if (pick(2) == 0)
            record.extension = {{"note", pick(100)}};
        ASSERT_TRUE(plugIn.applyStateRecord(record));
        model.loadPreset(values, record.uniqueId);
    }

    void recall(std::int32_t snapshot) {
        lastEdit = "recall";
        plugIn.selectSnapshot(snapshot, SnapshotMode::recallOrStore);
        model.recall(snapshot);
    }

    std::mt19937 random;
    UndoModel model{*plugIn.parameterSet(), {}};
    const char* lastEdit = "";
};

} // namespace

TEST(UndoSequences, tenThousandRandomEditsEndInTheModelsState) {
    for (unsigned seed = 1; seed <= 5; ++seed) {
        Sequence sequence(seed);
        for (int i = 0; i < 10000; ++i) {
            sequence.step();
            sequence.expectEqualStates(i);
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed;
        }
        for (int i = 0; sequence.plugIn.canUndo(); ++i) {
            sequence.undo();
            sequence.expectEqualStates(i);
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed;
        }
        for (int i = 0; sequence.plugIn.canRedo(); ++i) {
            sequence.redo();
            sequence.expectEqualStates(i);
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed;
        }
    }
}

TEST(UndoSequences, memoryIsFlatWhenTheHistoryIsCleared) {
#if !defined(__GLIBC__) || defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "the allocator of this build does not tell what is in use";
#else
    PlugInUnderTest<2> test;
    std::size_t inUse = 0;
    for (int round = 0; round < 5; ++round) {
        for (int i = 0; i < 2000; ++i) {
            test.plugIn.beginTouch(1);
            test.plugIn.setParameterValue(1, i % 2 == 0 ? 0.0 : 1.0);
            test.plugIn.endTouch(1);
            test.plugIn.applyStateRecord(test.plugIn.getStateRecord(StateExtent::complete));
            if (i % 3 == 0)
                test.plugIn.undo();
        }
        const std::size_t full = mallinfo2().uordblks;
        test.plugIn.clearUndoAndRedo();
        const std::size_t cleared = mallinfo2().uordblks;
        EXPECT_GT(full, cleared + 1000000) << "the history was there";
        // The stacks keep their capacity; nothing else may stay.
        if (round == 0)
            inUse = cleared;
        EXPECT_LE(cleared, inUse + 4096) << round;
    }
#endif
}
