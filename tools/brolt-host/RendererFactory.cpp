// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/RendererFactory.h"

#include "tools/brolt-host/ModelRendererFactory.h"
#include "tools/brolt-host/vst3/Vst3RendererFactory.h"

std::unique_ptr<RendererFactory> makeRendererFactory(const PlugInOptions& options) {
    if (options.form == PlugInForm::model)
        return std::make_unique<ModelRendererFactory>();
    return std::make_unique<Vst3RendererFactory>(options);
}
