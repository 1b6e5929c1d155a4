// SPDX-License-Identifier: GPL-3.0-or-later
// Writes settings records to preset files so that a crash, a kill or a full disk leaves the old
// file or the new one, never a part.
//
// A file that exists is updated, not made anew: the record lies over its beginning, and what was
// longer keeps its end (see GenericPresetFormat.h). The result is put together beside the file and
// takes its place in one step, with its owner and permissions; a link stays one. Where the folder
// allows no file beside it, the file is written where it lies, and gets its old bytes back when
// that fails. A file that is read-only stays as it is though the folder would let it be replaced.
#pragma once

#include "presets/record/QMGenericPreset.h"

#include <string>

namespace PresetFileWriter {

/// Writes a record to a file (UTF-8), which is made where it is missing. What it reports done
/// survives a power cut; false leaves things as they were. [message thread]
bool save(const std::string& path, const QMGenericPreset& record);

/// The same for a file that is there already; a missing one stays missing. An identifier that is
/// all that changes is written where it lies, in one piece. Survives the end of the process, not a
/// power cut: for what is done again when it is lost, and for thousands of files at once. [message
/// thread]
bool updateExisting(const std::string& path, const QMGenericPreset& record);

} // namespace PresetFileWriter
