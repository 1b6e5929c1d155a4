// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/EditorCommandLine.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/Utf8.h"

#include <CLI/CLI.hpp>

EditorCommandLine::EditorCommandLine(CLI::App& app) {
    CLI::App* const editor = app.add_subcommand("editor", "Open the plug-in's editor in a window");
    editor->footer("INPUT, any file that 'render' reads, is played in a loop, in real time and to "
                   "nobody,\nso that displays move; without it the plug-in hears silence. The "
                   "window's close button\nand Ctrl-C end the program.");
    editor->add_option("INPUT", view.input, "Audio file to play");
    view.addTo(*editor);
    editor->add_option("--seconds", view.seconds, "Close the window after N seconds")
        ->type_name("N");
    editor->add_flag("--print-edits", printEdits,
                     "Print what the editor reports, a line each: 'begin ID', 'perform ID VALUE' "
                     "(normalised), 'end ID'");
    command = editor;
}

bool EditorCommandLine::isGiven() const {
    return command->parsed();
}

EditorOptions EditorCommandLine::options() const {
    return {view.options(), printEdits};
}

ScreenshotCommandLine::ScreenshotCommandLine(CLI::App& app) {
    CLI::App* const screenshot =
        app.add_subcommand("screenshot", "Draw the plug-in's editor into a PNG file");
    screenshot->footer("Neither a window nor a screen is needed. With --input the displays show "
                       "what they show at\nthe end of the sound.");
    screenshot->add_option("OUT.png", output, "File to write")->required();
    view.addTo(*screenshot);
    screenshot->add_option("--input", view.input, "Audio file to play first")->type_name("FILE");
    screenshot->add_option("--seconds", view.seconds, "Play the first N seconds of it (all)")
        ->type_name("N");
    command = screenshot;
}

bool ScreenshotCommandLine::isGiven() const {
    return command->parsed();
}

ScreenshotOptions ScreenshotCommandLine::options() const {
    ScreenshotOptions options{view.options(), pathFromUtf8(output)};
    if (options.view.seconds && !options.view.input)
        throw HostError("screenshot: --seconds is a length of --input, which is not given");
    return options;
}
