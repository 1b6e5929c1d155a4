// SPDX-License-Identifier: GPL-3.0-or-later
// The role of an instance towards everybody who saves and restores it: hosts' projects, preset
// files, the parameter clipboard. A record is applied whole or not at all. Operations of the
// [message thread], or of the host's control thread while the host restores a project.
#pragma once

#include "plugin-model/FourCharCode.h"
#include "presets/record/SettingLocator.h"

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

struct NoxPlugInSnapshot;
struct QMGenericPreset;

/// How much of an instance a settings record holds.
enum class StateExtent {
    parameters, ///< values and the extension document; for undo
    complete,   ///< snapshots and blend as well; for hosts and preset files
};

class INoxPlugInState {
public:
    virtual ~INoxPlugInState() = default;

    /// Whether the instance gives out and takes settings records at all.
    [[nodiscard]] virtual bool supportsGenericPresets() const = 0;
    /// Whether a record is of this maker and product.
    [[nodiscard]] virtual bool canApplyGenericPreset(const QMGenericPreset& record) const = 0;

    /// Current settings under the identifier of the current preset.
    [[nodiscard]] virtual QMGenericPreset getStateRecord(StateExtent extent) const = 0;
    /// Applies a record as one bracketed, undoable change and tells the environment. False, and
    /// nothing has changed, for a record of another product. Throws nlohmann::json::exception, and
    /// nothing has changed, when the extension document has members of the wrong type.
    virtual bool applyStateRecord(const QMGenericPreset& record) = 0;
    /// Makes a record of another type of the product, or of an older host's envelope, one that this
    /// instance accepts: takes the instance's own codes over.
    virtual void adaptStateRecord(QMGenericPreset& record) const = 0;
    /// Whether the current settings are those of a record; parameters that applying skips do not
    /// count.
    [[nodiscard]] virtual bool equalsStateRecord(const QMGenericPreset& record) const = 0;

    /// The flat byte form of the values: see QM::ParameterStateRecord.
    [[nodiscard]] virtual std::vector<std::byte> getParameterState() const = 0;
    /// Every value at its default, in the same form.
    [[nodiscard]] virtual std::vector<std::byte> getFactoryState() const = 0;
    /// Like applyStateRecord; false for bytes that are no record of this product.
    virtual bool applyParameterState(std::span<const std::byte> bytes) = 0;

    /// Puts the complete settings aside.
    [[nodiscard]] virtual std::unique_ptr<NoxPlugInSnapshot> captureSettings() const = 0;
    /// Brings them back; false, and nothing has changed, for those of another product.
    virtual bool restoreSettings(const NoxPlugInSnapshot& settings) = 0;

    /// The preset the current settings came from.
    [[nodiscard]] virtual SettingLocator currentPresetLocator() const = 0;
    virtual void setCurrentPresetLocator(const SettingLocator& locator) = 0;
    [[nodiscard]] virtual std::uint64_t currentPresetId() const = 0;
    virtual void setCurrentPresetId(std::uint64_t id) = 0;

    /// Builds the event sources of the parameter controllers anew from the property "parameterMap"
    /// of the extension document; an empty property leaves the present ones. Throws
    /// nlohmann::json::exception for an entry that is no document.
    virtual void updateParameterControllerMapFromProperty() = 0;
};
