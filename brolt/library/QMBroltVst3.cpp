// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/QMBroltVst3.h"

#include "brolt/library/QMBroltEditors.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "brolt/model/QMBrolt_ProductCodes.h"

namespace {

Vst3Product describe() {
    Vst3Product product;
    product.version = QMBrolt::versionText;
    product.vendorUrl = "https://quolm.example";
    product.vendorEmail = "mailto:support@quolm.example";
    product.vst2UniqueId = QMBrolt::vst2UniqueId;
    // Of the VST 2 plug-ins whose place this class takes only our own is known, and the convention
    // gives it the very same class. The list is there because hosts take none for an error.
    product.earlierVst2Ids = {QMBrolt::vst2UniqueId};
    // Automation that the editor's gestures record then reaches the parameter the host has
    // published: one and the same number everywhere.
    product.publishesIndices = true;
    product.createTypeGroup = [](INoxPlugInEnvironment* environment) {
        return std::make_unique<QMBrolt_PlugInTypeGroup>(environment);
    };
    product.createEditorUI = broltEditors();
    return product;
}

} // namespace

const Vst3Product& broltVst3Product() {
    static const Vst3Product product = describe();
    return product;
}
