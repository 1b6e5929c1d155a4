// SPDX-License-Identifier: GPL-3.0-or-later
//
// The forms in which settings lie in files: preset files, and what plug-in interfaces hand to
// hosts.

#pragma once

#include <filesystem>
#include <optional>
#include <string>

enum class StateForm {
    preset, ///< a settings record, as preset files hold it
    vst3,   ///< the VST3 envelope
    vst2,   ///< the VST 2 chunk
    aax,    ///< the AAX chunk with its head
    bank,   ///< a VST 2 bank with a chunk in it; read only
};

/// "preset", "vst3", "vst2", "aax", "bank". [any thread]
const char* stateFormName(StateForm form);

/// The form of that name that can be written. Throws HostError when there is none.
/// [message thread]
StateForm parseStateForm(const std::string& name);

/// The form that a file's extension stands for: .qmpreset, .vst3state, .vst2chunk, .aaxchunk.
/// [any thread]
std::optional<StateForm> stateFormOfExtension(const std::filesystem::path& file);
