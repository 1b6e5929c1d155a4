// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/ScreenshotCommand.h"

#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/PngFile.h"
#include "tools/brolt-host/ReplacedFile.h"
#include "tools/brolt-host/Utf8.h"
#include "tools/brolt-host/editor/EditorCommand.h"
#include "tools/brolt-host/editor/EditorView.h"
#include "tools/brolt-host/editor/LoopedInput.h"
#include "tools/brolt-host/editor/ShownSound.h"
#include "tools/brolt-host/vst3/Vst3Module.h"
#include "tools/brolt-host/vst3/Vst3Renderer.h"

#include <cstdio>
#include <system_error>
#include <utility>

namespace {

void checkOutput(const ScreenshotOptions& options) {
    std::error_code ignored;
    if (options.view.input &&
        std::filesystem::equivalent(options.output, *options.view.input, ignored))
        throw HostError::ofFile(options.output, "is the input file");
}

/// The view, and nothing of it is left when the picture is written.
ViewSize drawView(const ScreenshotOptions& options, const std::filesystem::path& file) {
    const RenderPlan plan = planOfView(options.view);
    LoopedInput input(options.view.input);
    const int channels = plan.channels.value_or(input.channels());
    Vst3Module module(options.view.plugIn.bundle.value_or(Vst3Module::standardBundle()));
    Vst3Renderer renderer(module.effectClass(), module.messages(), Vst3Mode::realtime, channels,
                          input.sampleRate(), plan);
    EditorView view(renderer.controller());
    view.choose(options.view);
    // What the settings have set in motion.
    module.messages().deliverPending();
    if (options.view.input)
        playToView(view, renderer, std::move(input), plan, options.view.seconds);
    else
        view.refreshDisplays();
    const ViewSize size = view.size();
    writePngFile(file, size.width, size.height, view.picture());
    return size;
}

} // namespace

int runScreenshotCommand(const ScreenshotOptions& options) {
    checkOutput(options);
    ReplacedFile file(options.output);
    const ViewSize size = drawView(options, file.temporaryPath());
    file.commit();
    std::printf("%s: %d x %d pixels\n", utf8FromPath(options.output).c_str(), size.width,
                size.height);
    return ExitStatus::success;
}
