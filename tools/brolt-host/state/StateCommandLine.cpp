// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/StateCommandLine.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Utf8.h"

#include <CLI/CLI.hpp>

namespace {

StateForm convertedForm(const std::string& form, const std::filesystem::path& output) {
    if (!form.empty())
        return parseStateForm(form);
    if (const auto byExtension = stateFormOfExtension(output))
        return *byExtension;
    throw HostError::ofFile(output, "does not tell a form by its extension; give --to FORM");
}

} // namespace

PresetCommandLine::PresetCommandLine(CLI::App& app) {
    CLI::App* const command =
        app.add_subcommand("preset", "Show, list and convert presets and saved states");
    command->require_subcommand(1);

    CLI::App* const showCommand = command->add_subcommand(
        "show", "Print what a preset file or a saved state of any form holds");
    showCommand->add_option("FILE", shownFile, "Preset or state")->required();
    show = showCommand;

    CLI::App* const listCommand =
        command->add_subcommand("list", "List the presets as the plug-in's browser sorts them");
    listCommand->footer("Presets without an identifier get one, as they do in the plug-in.");
    listCommand->add_option("--factory", factoryFolder, "Factory presets, instead of the installed")
        ->type_name("DIR");
    listCommand->add_option("--user", userFolder, "User presets, instead of your own")
        ->type_name("DIR");
    listCommand->add_flag("--tsv", tabSeparated, "For programs: tabulators between columns");
    list = listCommand;

    CLI::App* const convertCommand =
        command->add_subcommand("convert", "Write the settings of one file in the form of another");
    convertCommand->footer(
        "Forms: preset (.qmpreset), vst3 (.vst3state), vst2 (.vst2chunk), aax (.aaxchunk).\n"
        "The input's form is found out from its bytes; VST 2 banks are understood as well.");
    convertCommand->add_option("IN", input, "Preset or state")->required();
    convertCommand->add_option("OUT", output, "File to write")->required();
    convertCommand
        ->add_option("--to", form, "Form to write (without it: what OUT's extension says)")
        ->type_name("FORM");
    convert = convertCommand;
}

std::optional<PresetOptions> PresetCommandLine::options() const {
    if (show->parsed())
        return PresetShowOptions{pathFromUtf8(shownFile)};
    if (list->parsed())
        return PresetListOptions{optionalPath(factoryFolder), optionalPath(userFolder),
                                 tabSeparated};
    if (convert->parsed()) {
        const std::filesystem::path file = pathFromUtf8(output);
        return PresetConvertOptions{pathFromUtf8(input), file, convertedForm(form, file)};
    }
    return std::nullopt;
}

void RenderStateCommandLine::addStartTo(CLI::App& command) {
    command
        .add_option("--state", state,
                    "Start from a saved state of any form (see 'preset convert'), before --preset")
        ->type_name("FILE");
    command.add_option("--preset", preset, "Start from a preset; --set goes on from there")
        ->type_name("FILE.qmpreset");
}

void RenderStateCommandLine::addTo(CLI::App& render) {
    addStartTo(render);
    render
        .add_option("--save-state", savedState,
                    "Save the settings the render starts with, in the form that the extension "
                    "says (VST3 without one)")
        ->type_name("FILE");
    render
        .add_option("--save-preset", savedPreset,
                    "Save the settings the render starts with as a preset of that name")
        ->type_name("FILE.qmpreset");
}

RenderStateOptions RenderStateCommandLine::options() const {
    return {optionalPath(state), optionalPath(preset), optionalPath(savedState),
            optionalPath(savedPreset)};
}
