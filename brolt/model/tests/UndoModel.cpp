// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/model/tests/UndoModel.h"

void UndoModel::remember(Kind kind, std::int32_t index) {
    if (quiet)
        return;
    if (!replaying)
        redoSteps.clear();
    if (depth > 0 || replaying)
        open.push_back({kind, index, state});
    else
        undoSteps.push_back({{kind, index, state}});
}

void UndoModel::beginBlendGesture() {
    ++depth;
    blendAwaited = true;
}

void UndoModel::beginGesture(std::int32_t index) {
    beginBlendGesture();
    if (state.active == -2)
        remember(Kind::blend);
    else
        remember(Kind::parameter, index);
}

void UndoModel::endGesture() {
    if (--depth == 0 && !open.empty()) {
        undoSteps.push_back(open);
        open.clear();
    }
}

void UndoModel::change(std::int32_t index, double value) {
    const auto place = static_cast<std::size_t>(index);
    state.values[place] = value;
    if (state.active >= 0)
        state.snapshots[static_cast<std::size_t>(state.active)][place] = value;
}

void UndoModel::applyBlend(float x) {
    state.active = -2;
    state.blend = x;
    for (std::size_t k = 0; k < state.values.size(); ++k) {
        const auto index = static_cast<std::int32_t>(k);
        const double a = state.snapshots[0][k];
        const double b = state.snapshots[1][k];
        const double na = set.plainToNormalised(index, a);
        const double nb = set.plainToNormalised(index, b);
        state.values[k] =
            a == b ? a : set.normalisedToPlain(index, na + (nb - na) * static_cast<double>(x));
        if (state.values[k] > set.maximum(index))
            state.values[k] = set.maximum(index);
        if (state.values[k] < set.minimum(index))
            state.values[k] = set.minimum(index);
    }
}

void UndoModel::moveBlend(float x) {
    if (x == state.blend && state.active == -2)
        return;
    if (blendAwaited)
        remember(Kind::blend);
    blendAwaited = false;
    applyBlend(x);
}

void UndoModel::setAllButBypass(const std::vector<double>& values) {
    for (std::size_t k = 1; k < values.size(); ++k)
        change(static_cast<std::int32_t>(k), values[k]);
}

void UndoModel::loadPreset(const std::vector<double>& values, std::uint64_t id) {
    remember(Kind::preset);
    setAllButBypass(values);
    state.presetId = id;
    if (state.active >= 0)
        state.snapshotIds[static_cast<std::size_t>(state.active)] = id;
}

void UndoModel::recall(std::int32_t snapshot) {
    if (snapshot == state.active)
        return;
    remember(Kind::preset);
    state.active = snapshot;
    state.presetId = state.snapshotIds[static_cast<std::size_t>(snapshot)];
    state.values = state.snapshots[static_cast<std::size_t>(snapshot)];
}

void UndoModel::bringBackPreset(const State& before) {
    remember(Kind::preset);
    quiet = true;
    if (before.active == -2) {
        applyBlend(state.blend);
        blendAwaited = false;
    }
    state.active = before.active;
    loadPreset(before.values, before.presetId);
    quiet = false;
}

void UndoModel::bringBack(const Memory& memory) {
    switch (memory.kind) {
    case Kind::parameter:
        remember(Kind::parameter, memory.index);
        change(memory.index, memory.before.values[static_cast<std::size_t>(memory.index)]);
        break;
    case Kind::preset:
        bringBackPreset(memory.before);
        break;
    case Kind::blend:
        blendAwaited = true;
        moveBlend(memory.before.blend);
        break;
    }
}

void UndoModel::undo() {
    Step setAside;
    std::swap(setAside, open);
    Step taken;
    if (depth > 0) {
        if (!setAside.empty()) {
            taken.push_back(setAside.back());
            setAside.pop_back();
        }
    } else if (!undoSteps.empty()) {
        taken = undoSteps.back();
        undoSteps.pop_back();
    }
    replaying = true;
    for (auto memory = taken.rbegin(); memory != taken.rend(); ++memory)
        bringBack(*memory);
    replaying = false;
    if (!open.empty())
        redoSteps.push_back(open);
    open = setAside;
}

void UndoModel::redo() {
    if (redoSteps.empty())
        return;
    const Step taken = redoSteps.back();
    redoSteps.pop_back();
    replaying = true;
    for (auto memory = taken.rbegin(); memory != taken.rend(); ++memory)
        bringBack(*memory);
    replaying = false;
    if (depth == 0 && !open.empty()) {
        undoSteps.push_back(open);
        open.clear();
    }
}
