// SPDX-License-Identifier: GPL-3.0-or-later
// An instance that is nothing but its settings record, for tests of the envelopes.
#pragma once

#include "plugin-model/INoxPlugInState.h"
#include "plugin-model/NoxPlugInSnapshot.h"
#include "presets/record/QMGenericPreset.h"

#include <string>
#include <vector>

class FakeStatefulPlugIn : public INoxPlugInState {
public:
    /// 'QML ' and 'BRLT', a few values and a document.
    FakeStatefulPlugIn();

    QMGenericPreset state;
    /// What it was asked to do, in order: "apply", "adapt", "equals".
    mutable std::vector<std::string> calls;

    [[nodiscard]] bool supportsGenericPresets() const override { return true; }

    [[nodiscard]] bool canApplyGenericPreset(const QMGenericPreset& record) const override;

    /// The parameters' extent leaves the document out, so that a test sees which one was asked for.
    [[nodiscard]] QMGenericPreset getStateRecord(StateExtent extent) const override;
    /// Declines other products' records; throws for a document with a text in "mBlendX".
    bool applyStateRecord(const QMGenericPreset& record) override;
    void adaptStateRecord(QMGenericPreset& record) const override;
    [[nodiscard]] bool equalsStateRecord(const QMGenericPreset& record) const override;

    // Not the envelopes' business.
    [[nodiscard]] std::vector<std::byte> getParameterState() const override { return {}; }

    [[nodiscard]] std::vector<std::byte> getFactoryState() const override { return {}; }

    bool applyParameterState(std::span<const std::byte>) override { return false; }

    [[nodiscard]] std::unique_ptr<NoxPlugInSnapshot> captureSettings() const override {
        return nullptr;
    }

    bool restoreSettings(const NoxPlugInSnapshot&) override { return false; }

    [[nodiscard]] SettingLocator currentPresetLocator() const override { return {}; }

    void setCurrentPresetLocator(const SettingLocator&) override {}

    [[nodiscard]] std::uint64_t currentPresetId() const override { return state.uniqueId; }

    void setCurrentPresetId(std::uint64_t id) override { state.uniqueId = id; }

    void updateParameterControllerMapFromProperty() override {}
};
