// SPDX-License-Identifier: GPL-3.0-or-later
// Settings records of a values object: giving them out and taking them in. A record is applied
// whole or not at all. [message thread], or the host's thread while it restores a project
#pragma once

#include "plugin-model/FourCharCode.h"
#include "plugin-model/INoxPlugInState.h"
#include "plugin-model/QMParameterChanges.h"

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <set>
#include <span>
#include <vector>

struct QMGenericPreset;

namespace QM {

class IQMParameterRecords {
public:
    virtual ~IQMParameterRecords() = default;

    /// The current settings under the identifier of the current preset.
    [[nodiscard]] virtual QMGenericPreset makeRecord(StateExtent extent) const = 0;
    /// Whether the set accepts the record's maker and product.
    [[nodiscard]] virtual bool acceptsRecord(const QMGenericPreset& record) const = 0;
    /// Applies the values that have a parameter here and are not excluded, as one bracketed,
    /// undoable change; then takes the extension document over, and the snapshots in it. False for
    /// a record that is not accepted. Throws nlohmann::json::type_error for snapshot members of the
    /// wrong type. Nothing has changed in either case.
    virtual bool applyRecord(const QMGenericPreset& record, QMParameterChanges* changes) = 0;
    /// Whether the current values are those of a record, excluded parameters left out.
    [[nodiscard]] virtual bool equalsRecord(const QMGenericPreset& record) const = 0;

    /// The values in their flat byte form: see ParameterStateRecord.
    [[nodiscard]] virtual std::vector<std::byte> makeStateRecord() const = 0;
    /// Whether bytes are such a form of this type and version.
    [[nodiscard]] virtual bool acceptsStateRecord(std::span<const std::byte> bytes) const = 0;
    /// Like applyRecord; false for bytes that are not accepted.
    virtual bool applyStateRecord(std::span<const std::byte> bytes,
                                  QMParameterChanges* changes) = 0;

    /// What goes into records beside values and snapshots; null when there is nothing.
    [[nodiscard]] virtual const nlohmann::json& extensionDocument() const = 0;
    virtual void setExtensionDocument(nlohmann::json document) = 0;

    /// Identifier of the preset applied last; 0 when there was none.
    [[nodiscard]] virtual std::uint64_t currentPresetId() const = 0;
    virtual void setCurrentPresetId(std::uint64_t id) = 0;

    /// Parameters that applying a record skips.
    [[nodiscard]] virtual const std::set<FourCharCode>& excludedIDs() const = 0;
    virtual void excludeID(FourCharCode id) = 0;
    /// Master Bypass alone: whether the plug-in is bypassed belongs to the session, not to a sound.
    virtual void resetExcludedIDs() = 0;

    [[nodiscard]] virtual bool matchesFirstCode(FourCharCode code) const = 0;
    [[nodiscard]] virtual bool matchesSecondCode(FourCharCode code) const = 0;
    [[nodiscard]] virtual bool isNotAboveVersion(std::uint32_t version) const = 0;
};

} // namespace QM
