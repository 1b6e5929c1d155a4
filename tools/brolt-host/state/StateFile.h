// SPDX-License-Identifier: GPL-3.0-or-later
//
// Settings in files, in whichever form.

#pragma once

#include "presets/record/QMGenericPreset.h"
#include "tools/brolt-host/state/StateForm.h"

#include <cstddef>
#include <vector>

struct StateFile {
    StateForm form = StateForm::preset;
    QMGenericPreset record;
};

/// Finds out the form from the bytes. Throws HostError, with the file's name and the reason, for a
/// file that cannot be read, is in none of the forms or is damaged. [message thread]
StateFile readStateFile(const std::filesystem::path& file);

/// The bytes of a record in a form. Throws HostError for the form that is read only.
/// [message thread]
std::vector<std::byte> encodeState(const QMGenericPreset& record, StateForm form);

/// Writes a file that appears complete or not at all. Throws HostError. [message thread]
void writeStateFile(const std::filesystem::path& file, const QMGenericPreset& record,
                    StateForm form);

/// Writes a preset file under the name that the file has, with the identifier of the preset that is
/// replaced, or a fresh one. Throws HostError. [message thread]
void writePresetFile(const std::filesystem::path& file, QMGenericPreset record);
