// SPDX-License-Identifier: GPL-3.0-or-later
//
// brolt-host: the plug-in at the command line. Every way out of the program is here.

#include "tools/brolt-host/CommandLine.h"
#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/InfoCommand.h"
#include "tools/brolt-host/Interruption.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/ParameterReport.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/RenderCommand.h"
#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/editor/EditorCommand.h"
#include "tools/brolt-host/editor/ScreenshotCommand.h"
#include "tools/brolt-host/state/PresetCommand.h"

#include <cstdio>
#include <exception>

#ifdef _WIN32
#    include <windows.h>
#endif

namespace {

void print(const std::string& text) {
    std::fputs(text.c_str(), stdout);
}

struct CommandRunner {
    int operator()(const RenderOptions& options) const { return runRenderCommand(options); }

    int operator()(const ParamsOptions& options) const {
        ProductModel product;
        print(options.tabSeparated ? tabSeparatedTable(parameterData(product.parameters()))
                                   : alignedTable(parameterRows(product.parameters())));
        return ExitStatus::success;
    }

    int operator()(const InfoOptions& options) const { return runInfoCommand(options); }

    int operator()(const PresetShowOptions& options) const { return runPresetShow(options); }

    int operator()(const PresetListOptions& options) const { return runPresetList(options); }

    int operator()(const PresetConvertOptions& options) const { return runPresetConvert(options); }

    int operator()(const EditorOptions& options) const { return runEditorCommand(options); }

    int operator()(const ScreenshotOptions& options) const { return runScreenshotCommand(options); }

    int operator()(const TextRequest& request) const {
        print(request.text);
        return ExitStatus::success;
    }
};

int runProgram(const std::vector<std::string>& arguments) {
    try {
        watchForInterruption();
        const int status = std::visit(CommandRunner(), parseCommandLine(arguments));
        if (std::fflush(stdout) != 0)
            throw HostError("standard output cannot be written");
        return status;
    } catch (const HostError& error) {
        printMessage(error.what());
        return ExitStatus::badInput;
    } catch (const Interrupted& interrupted) {
        printMessage("interrupted; unfinished files are removed");
        return ExitStatus::signalBase + interrupted.signal;
    } catch (const std::bad_alloc&) {
        printMessage("not enough memory");
        return ExitStatus::internalFailure;
    } catch (const std::exception& error) {
        printMessage(std::string("internal error: ") + error.what());
        return ExitStatus::internalFailure;
    }
}

} // namespace

int main(int argc, char** argv) {
#ifdef _WIN32
    SetConsoleOutputCP(CP_UTF8);
#endif
    return runProgram(utf8Arguments(argc, argv));
}
