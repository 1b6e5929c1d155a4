// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/InfoCommand.h"

#include "tools/brolt-host/ExitStatus.h"
#include "tools/brolt-host/ProductReport.h"
#include "tools/brolt-host/vst3/Vst3Module.h"
#include "tools/brolt-host/vst3/Vst3Report.h"

#include <cstdio>

namespace {

/// At once: what the plug-in or an error adds comes behind it.
void print(const std::string& text) {
    std::fputs(text.c_str(), stdout);
    std::fflush(stdout);
}

} // namespace

int runInfoCommand(const InfoOptions& options) {
    ProductModel product;
    print(productReport(product));
    if (options.plugIn.form == PlugInForm::vst3) {
        Vst3Module module(options.plugIn.bundle.value_or(Vst3Module::standardBundle()));
        print("\n" + vst3Report(module));
    }
    return ExitStatus::success;
}
