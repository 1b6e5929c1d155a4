// SPDX-License-Identifier: GPL-3.0-or-later
//
// A settings record in the place of an instance, so that a record goes into and comes out of the
// envelopes as it is: an instance would clamp values, leave the bypass out and forget the name.

#pragma once

#include "plugin-model/INoxPlugInState.h"
#include "presets/record/QMGenericPreset.h"

class RecordState : public INoxPlugInState {
public:
    RecordState() = default;

    explicit RecordState(QMGenericPreset heldRecord)
        : record(std::move(heldRecord)) {}

    [[nodiscard]] bool supportsGenericPresets() const override { return true; }

    [[nodiscard]] bool canApplyGenericPreset(const QMGenericPreset&) const override { return true; }

    [[nodiscard]] QMGenericPreset getStateRecord(StateExtent) const override { return record; }

    bool applyStateRecord(const QMGenericPreset& applied) override;

    /// Records stay what they are.
    void adaptStateRecord(QMGenericPreset&) const override {}

    [[nodiscard]] bool equalsStateRecord(const QMGenericPreset& other) const override;

    /// No instance, no flat form.
    [[nodiscard]] std::vector<std::byte> getParameterState() const override { return {}; }

    [[nodiscard]] std::vector<std::byte> getFactoryState() const override { return {}; }

    bool applyParameterState(std::span<const std::byte>) override { return false; }

    [[nodiscard]] std::unique_ptr<NoxPlugInSnapshot> captureSettings() const override;
    bool restoreSettings(const NoxPlugInSnapshot& settings) override;
    [[nodiscard]] SettingLocator currentPresetLocator() const override;

    void setCurrentPresetLocator(const SettingLocator&) override {}

    [[nodiscard]] std::uint64_t currentPresetId() const override { return record.uniqueId; }

    void setCurrentPresetId(std::uint64_t id) override { record.uniqueId = id; }

    void updateParameterControllerMapFromProperty() override {}

    QMGenericPreset record;
};
