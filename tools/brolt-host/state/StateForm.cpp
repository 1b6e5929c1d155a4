// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/StateForm.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Utf8.h"

#include <array>

namespace {

struct WrittenForm {
    StateForm form;
    const char* name;
    const char* extension;
};

// clang-format off
constexpr std::array<WrittenForm, 4> writtenForms{{
    {StateForm::preset, "preset", ".qmpreset"},
    {StateForm::vst3,   "vst3",   ".vst3state"},
    {StateForm::vst2,   "vst2",   ".vst2chunk"},
    {StateForm::aax,    "aax",    ".aaxchunk"},
}};

// clang-format on

} // namespace

const char* stateFormName(StateForm form) {
    for (const WrittenForm& row : writtenForms) {
        if (row.form == form)
            return row.name;
    }
    return "bank";
}

StateForm parseStateForm(const std::string& name) {
    for (const WrittenForm& row : writtenForms) {
        if (row.name == name)
            return row.form;
    }
    throw HostError("--to " + name + ": must be preset, vst3, vst2 or aax");
}

std::optional<StateForm> stateFormOfExtension(const std::filesystem::path& file) {
    for (const WrittenForm& row : writtenForms) {
        if (utf8FromPath(file.extension()) == row.extension)
            return row.form;
    }
    return std::nullopt;
}
