// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/CommandLine.h"

#include "brolt/model/QMBrolt_ProductCodes.h"
#include "tools/brolt-host/CommandLineParts.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/PlugInCommandLine.h"
#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/editor/EditorCommandLine.h"
#include "tools/brolt-host/state/StateCommandLine.h"

#include <CLI/CLI.hpp>

namespace {

/// The render command's options as texts, which is what messages quote.
struct RenderTexts {
    std::vector<std::string> files;
    std::vector<std::string> settings;
    std::string outputFolder;
    RenderStateCommandLine state;
    PlugInCommandLine plugIn;
    std::string automation;
    std::string block = "512";
    std::string channels;
    std::string bits = "float";
    std::string trace;
    std::string plot;
    bool quiet = false;
};

void addRender(CLI::App& app, RenderTexts& texts) {
    CLI::App* const render = app.add_subcommand("render", "Render audio files through the plug-in");
    render->footer(
        "  brolt-host render [OPTIONS] IN OUT\n"
        "  brolt-host render [OPTIONS] IN... --out-dir FOLDER\n\n"
        "A file with one channel runs the mono type, one with two the stereo type; the output has\n"
        "the input's length and sample rate. Output files appear complete or not at all.\n\n"
        "FILE of --automate: lines 'seconds ID value'; # begins a comment. A change takes effect "
        "at\n"
        "the start of the block that contains it.\n\n"
        "Both forms render the same bits. --trace-records and --plot look into the processor,\n"
        "which no plug-in interface shows: they look at a model that runs beside the bundle, and\n"
        "compare the two.");
    render->add_option("FILES", texts.files, "Input and output file; only inputs with --out-dir")
        ->required();
    render
        ->add_option("--out-dir", texts.outputFolder,
                     "Write each input's result into FOLDER, as NAME.wav")
        ->type_name("FOLDER");
    addSettingsOption(*render, texts.settings);
    texts.state.addTo(*render);
    render->add_option("--automate", texts.automation, "Change parameters over time")
        ->type_name("FILE");
    addBlockOption(*render, texts.block);
    addChannelsOption(*render, texts.channels);
    render->add_option("--bits", texts.bits, "Samples of the output: float (default), 24 or 16")
        ->type_name("BITS");
    render
        ->add_option("--trace-records", texts.trace,
                     "Write each coefficient record the processor starts to use, and when")
        ->type_name("FILE");
    render->add_option("--plot", texts.plot, "Draw pitch and levels over time")
        ->type_name("FILE.png");
    texts.plugIn.addTo(*render);
    texts.plugIn.addModeTo(*render);
    render->add_flag("--quiet", texts.quiet, "No progress and no report; problems are still told");
}

SampleEncoding parseEncoding(const std::string& text) {
    if (text == "float")
        return SampleEncoding::float32;
    if (text == "24")
        return SampleEncoding::pcm24;
    if (text == "16")
        return SampleEncoding::pcm16;
    throw HostError("--bits " + text + ": must be float, 24 or 16");
}

RenderOptions renderOptions(const RenderTexts& texts) {
    RenderOptions options;
    for (const std::string& file : texts.files)
        options.files.push_back(pathFromUtf8(file));
    options.outputFolder = optionalPath(texts.outputFolder);
    options.settings = texts.settings;
    options.state = texts.state.options();
    options.automation = optionalPath(texts.automation);
    options.blockSize = parseBlockSize(texts.block);
    options.channels = parseChannels(texts.channels);
    options.encoding = parseEncoding(texts.bits);
    options.trace = optionalPath(texts.trace);
    options.plot = optionalPath(texts.plot);
    options.plugIn = texts.plugIn.options();
    options.quiet = texts.quiet;

    constexpr std::size_t inputAndOutput = 2;
    if (!options.outputFolder && options.files.size() != inputAndOutput)
        throw HostError("render: give one input and one output file, or --out-dir FOLDER");
    if (options.outputFolder && options.files.size() > 1 && (options.trace || options.plot))
        throw HostError("render: --trace-records and --plot are for one input file at a time");
    return options;
}

/// The library would only say that a command is missing.
void checkCommand(const CLI::App& app, const std::vector<std::string>& arguments) {
    if (arguments.empty() || arguments[0].starts_with('-'))
        return;
    for (const CLI::App* const command : app.get_subcommands(nullptr)) {
        if (command->check_name(arguments[0]))
            return;
    }
    throw HostError("unknown command '" + arguments[0] + "' (--help tells more)");
}

} // namespace

CommandLine parseCommandLine(const std::vector<std::string>& arguments) {
    CLI::App app("Runs the QM Brolt plug-in over audio files and tells about it.", "brolt-host");
    app.set_version_flag("--version", QMBrolt::versionText);
    app.require_subcommand(1);
    RenderTexts texts;
    addRender(app, texts);
    ParamsOptions params;
    CLI::App* const paramsCommand =
        app.add_subcommand("params", "List the parameters: identifiers, ranges, defaults, texts");
    paramsCommand->add_flag("--tsv", params.tabSeparated,
                            "For programs: tabulators between columns");
    PlugInCommandLine infoPlugIn;
    CLI::App* const infoCommand =
        app.add_subcommand("info", "Tell what the plug-in is, and what its bundle says of itself");
    infoPlugIn.addTo(*infoCommand);
    const PresetCommandLine preset(app);
    const EditorCommandLine editor(app);
    const ScreenshotCommandLine screenshot(app);

    checkCommand(app, arguments);
    try {
        // The library takes them from the back.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::CallForHelp&) {
        return TextRequest{app.help()};
    } catch (const CLI::CallForVersion&) {
        return TextRequest{"brolt-host " + std::string(QMBrolt::versionText) + "\n"};
    } catch (const CLI::ParseError& error) {
        throw HostError(std::string(error.what()) + " (--help tells more)");
    }
    if (paramsCommand->parsed())
        return params;
    if (infoCommand->parsed())
        return InfoOptions{infoPlugIn.options()};
    if (auto presetOptions = preset.options()) {
        return std::visit([](auto& chosen) { return CommandLine(std::move(chosen)); },
                          *presetOptions);
    }
    if (editor.isGiven())
        return editor.options();
    if (screenshot.isGiven())
        return screenshot.options();
    return renderOptions(texts);
}
