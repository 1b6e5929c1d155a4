// SPDX-License-Identifier: GPL-3.0-or-later
// A values object for tests of snapshots, records and undo, and a handler for its replays.
#pragma once

#include "plugin-model/QMParameterSet.h"
#include "plugin-model/QMParameterValues.h"
#include "presets/record/QMGenericPreset.h"

#include <array>
#include <vector>

namespace stateTest {

constexpr std::int32_t bypassIndex = 0; ///< 'mbyp', stepped 0..1, default 0
constexpr std::int32_t levelIndex = 1;  ///< 'levl', linear 0..10, default 5, in steps of 0.5
constexpr std::int32_t pitchIndex = 2;  ///< 'ptch', logarithmic 1..400, default 20
constexpr std::int32_t stayIndex = 3;   ///< 'stay', linear 0..1, default 0.5, not blended
constexpr std::int32_t count = 4;

constexpr FourCharCode maker = fourCharCode("TMkr");
constexpr FourCharCode product = fourCharCode("PROD");
constexpr FourCharCode typeCode = fourCharCode("TYP1");

// clang-format off
inline constexpr std::array<NoxPlugInParameter, count> parameters{{
    // name     names    unit  text     with unit min  max    default taper                  step  factor id                    grp sub hook     opt1 2  unit 0 curve opt3
    {"Bypass",  nullptr, "",   nullptr, nullptr, 0.0, 1.0,   0.0,    NoxTaper::stepped,     1.0,  1.0,   fourCharCode("mbyp"), 0,  0,  nullptr, 0,   0, 2,   0, 0.0, 0},
    {"Level",   nullptr, "dB", nullptr, nullptr, 0.0, 10.0,  5.0,    NoxTaper::linear,      0.5,  1.0,   fourCharCode("levl"), 0,  0,  nullptr, 0,   0, 13,  0, 0.0, 0},
    {"Pitch",   nullptr, "Hz", nullptr, nullptr, 1.0, 400.0, 20.0,   NoxTaper::logarithmic, 0.0,  1.0,   fourCharCode("ptch"), 0,  0,  nullptr, 0,   0, 8,   0, 0.0, 0},
    {"Stay",    nullptr, "",   nullptr, nullptr, 0.0, 1.0,   0.5,    NoxTaper::linear,      0.0,  1.0,   fourCharCode("stay"), 0,  0,  nullptr, 0,   0, 2,   0, 0.0, 0},
}};

// clang-format on

class Set : public QM::QMParameterSet {
public:
    Set()
        : QMParameterSet(parameters, {}, {}, 1) {
        setFirstCode(maker);
        setSecondCode(typeCode);
        addAcceptedPair(maker, product);
    }

    [[nodiscard]] bool isBlendable(std::int32_t index) const override {
        return index != stayIndex && QMParameterSet::isBlendable(index);
    }
};

class Values : public QM::QMParameterValues {
public:
    explicit Values(QM::IQMParameterSet& parameterSet)
        : QMParameterValues(parameterSet, 44100.0) {}

    [[nodiscard]] FourCharCode manufacturerCode() const override { return maker; }

    [[nodiscard]] FourCharCode productCode() const override { return product; }

    /// All values, in the order of the parameters.
    [[nodiscard]] std::vector<double> all() const {
        std::vector<double> result;
        for (std::int32_t i = 0; i < count; ++i)
            result.push_back(getValue(i));
        return result;
    }

    [[nodiscard]] std::vector<double> snapshot(std::int32_t index) const {
        std::vector<double> result;
        for (std::int32_t i = 0; i < count; ++i)
            result.push_back(snapshotValue(index, i));
        return result;
    }

    void set(std::int32_t index, double value) { setParameterValue(index, value, nullptr); }

    /// One gesture of the editor.
    void edit(std::int32_t index, double value) {
        beginTouch(index);
        set(index, value);
        endTouch(index);
    }

    void select(std::int32_t index, QM::SnapshotMode mode = QM::SnapshotMode::recallOrStore) {
        selectSnapshot(index, mode, nullptr);
    }
};

/// Replays straight into the values.
class Handler : public QM::IQMParameterValuesUndoHandler {
public:
    explicit Handler(QM::QMParameterValues& handledValues)
        : values(handledValues) {}

    void replayParameterValue(std::int32_t index, double value) override {
        values.setParameterValue(index, value, nullptr);
    }

    void replayRecord(const QMGenericPreset& record) override {
        values.applyRecord(record, nullptr);
    }

    void replayBlendAmount(float x) override {
        values.setBlend(x, values.blendCoordinate(true), nullptr);
    }

private:
    QM::QMParameterValues& values;
};

/// A values object with two snapshots.
struct State {
    State() {
        values.setSnapshotCount(2);
        values.setUndoHandler(&handler);
    }

    /// A and B filled, A active.
    void fillBoth(const std::vector<double>& a, const std::vector<double>& b) {
        setAll(a);
        values.select(0, QM::SnapshotMode::store);
        values.select(1, QM::SnapshotMode::store);
        setAll(b); // goes into B, which is active
        values.select(0);
        values.undoManager().clear();
    }

    void setAll(const std::vector<double>& plainValues) {
        for (std::size_t i = 0; i < plainValues.size(); ++i)
            values.set(static_cast<std::int32_t>(i), plainValues[i]);
    }

    Set set;
    Values values{set};
    Handler handler{values};
};

} // namespace stateTest
