// SPDX-License-Identifier: GPL-3.0-or-later
// What undo must do, told simply: every step remembers whole states, and the kind of each memory
// says what of it comes back. Tests drive a model and an instance through the same edits.
#pragma once

#include "plugin-model/IQMParameterSet.h"

#include <array>
#include <vector>

class UndoModel {
public:
    struct State {
        std::vector<double> values;
        std::array<std::vector<double>, 2> snapshots;
        std::array<std::uint64_t, 2> snapshotIds{};
        std::int32_t active = -1;
        float blend = 0.5f;
        std::uint64_t presetId = 0;
    };

    UndoModel(const QM::IQMParameterSet& parameterSet, State initialState)
        : set(parameterSet)
        , state(std::move(initialState)) {}

    void beginGesture(std::int32_t index);
    void endGesture();
    void change(std::int32_t index, double value);
    void beginBlendGesture();
    void moveBlend(float x);
    void loadPreset(const std::vector<double>& values, std::uint64_t id);
    void recall(std::int32_t snapshot);
    void undo();
    void redo();

    const QM::IQMParameterSet& set;
    State state;

private:
    enum class Kind { parameter, preset, blend };

    struct Memory {
        Kind kind;
        std::int32_t index;
        State before;
    };

    using Step = std::vector<Memory>;

public:
    std::vector<Step> undoSteps;
    std::vector<Step> redoSteps;

private:
    void remember(Kind kind, std::int32_t index = -1);
    void bringBack(const Memory& memory);
    void bringBackPreset(const State& before);
    void setAllButBypass(const std::vector<double>& values);
    void applyBlend(float x);

    bool blendAwaited = false; ///< the next move of the blend is remembered
    int depth = 0;
    Step open;
    bool quiet = false;
    bool replaying = false;
};
