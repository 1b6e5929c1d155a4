// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/PlugInCommandLine.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Utf8.h"

#include <CLI/CLI.hpp>

namespace {

Vst3Mode parseMode(const std::string& name) {
    if (name.empty() || name == "realtime")
        return Vst3Mode::realtime;
    if (name == "offline")
        return Vst3Mode::offline;
    throw HostError("--mode " + name + ": must be realtime or offline");
}

} // namespace

void PlugInCommandLine::addTo(CLI::App& command) {
    command
        .add_option("--format", formName,
                    "What to drive: vst3, the plug-in's bundle (default), or model, the plug-in "
                    "model that is part of this program")
        ->type_name("FORM");
    addBundleTo(command);
}

void PlugInCommandLine::addBundleTo(CLI::App& command) {
    command
        .add_option("--plugin", bundle,
                    "The VST3 bundle to load, instead of QMBrolt.vst3 beside this program")
        ->type_name("PATH");
}

void PlugInCommandLine::addModeTo(CLI::App& command) {
    command
        .add_option("--mode", modeName,
                    "VST3 process mode: realtime (default) changes parameters between the blocks, "
                    "offline within them")
        ->type_name("MODE");
}

PlugInForm PlugInCommandLine::form() const {
    if (formName.empty() || formName == "vst3")
        return PlugInForm::vst3;
    if (formName == "model")
        return PlugInForm::model;
    if (formName == "vst2")
        throw HostError("--format vst2: is not available in this build");
    throw HostError("--format " + formName + ": must be vst3 or model");
}

/// Options of the other form would be silently without effect.
void PlugInCommandLine::checkModelOptions() const {
    const std::string reason = ": is for --format vst3 alone";
    if (!modeName.empty())
        throw HostError("--mode " + modeName + reason);
    if (!bundle.empty())
        throw HostError("--plugin " + bundle + reason);
}

PlugInOptions PlugInCommandLine::options() const {
    PlugInOptions options;
    options.mode = parseMode(modeName);
    options.form = form();
    options.bundle = optionalPath(bundle);
    if (options.form == PlugInForm::model)
        checkModelOptions();
    return options;
}
