// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/QMBroltEditors.h"

#include "brolt/editor/QMBroltUI.h"
#include "widgets/generic/GenericEditorContent.h"
#include "widgets/ui/QMPlugInGenericUI.h"

namespace {

/// Beside the key of the product's own editor, whose sizes are others.
constexpr const char* sizeKeyOfGenericEditor = "BROLT_GENERIC_SML";

std::unique_ptr<IQMPlugInUI> makeEditor(INoxPlugIn& plugIn, IQMPlugInUIHost* host,
                                        PlugInUINumber number) {
    if (number == PlugInUINumber::product)
        return std::make_unique<QMBroltUI>(plugIn, host);
    return std::make_unique<QMPlugInGenericUI>(
        plugIn, host,
        [](const GenericEditorDescription& description) {
            return std::make_unique<GenericEditorContent>(description);
        },
        sizeKeyOfGenericEditor);
}

} // namespace

QMPlugInUIFactory broltEditors() {
    return makeEditor;
}
