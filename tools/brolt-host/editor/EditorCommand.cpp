// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/editor/EditorCommand.h"

#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/Messages.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/editor/EditText.h"
#include "tools/brolt-host/editor/EditorSession.h"
#include "tools/brolt-host/state/InstanceSettings.h"
#include "tools/brolt-host/vst3/Vst3Module.h"

#include <cstdio>

RenderPlan planOfView(const ViewOptions& options) {
    RenderPlan plan;
    plan.records = readRecords(options.state);
    plan.settings = readSettings(options.settings);
    plan.blockSize = options.blockSize;
    plan.channels = options.channels;
    return plan;
}

int runEditorCommand(const EditorOptions& options) {
    const RenderPlan plan = planOfView(options.view);
    LoopedInput input(options.view.input);
    ProductModel product;
    const auto print = [&](const Vst3Edit& edit) {
        std::puts(editText(edit, product.parameters()).c_str());
        std::fflush(stdout); // who reads along wants it now
    };
    // The screen goes after the library, which may have windows of its own.
    const auto screen = openEditorScreen();
    Vst3Module module(options.view.plugIn.bundle.value_or(Vst3Module::standardBundle()));
    const EditorPlace place{*screen, module.messages(), module.effectClass(),
                            printableText(module.effectName())};
    runEditorSession(place, options.view, plan, std::move(input),
                     options.printEdits ? Vst3ComponentHandler::Observer(print) : nullptr);
    return ExitStatus::success;
}
