// SPDX-License-Identifier: GPL-3.0-or-later
// What the editors of one family of products have in common: a size that is remembered, and, where
// a product's tables have them, a size selector ('smlB') and a help button ('help').
// [message thread]
#pragma once

#include "widgets/ui/QMWidgetPluginUI.h"

class QMTessalyPluginUI : public QMWidgetPluginUI {
public:
    static constexpr FourCharCode sizeSelectorID = fourCharCode("smlB");
    static constexpr FourCharCode helpButtonID = fourCharCode("help");

    using QMWidgetPluginUI::QMWidgetPluginUI;

    /// Builds the widgets, then gives the editor the looks and the size that the user chose. Twice
    /// is once.
    void setupAfterCreation() override;

protected:
    /// The product's own step when its widgets are there, before they are seen.
    virtual void widgetsBuilt() {}

    /// Gives the widgets the looks that the user chose.
    virtual void applyAppearance() {}

private:
    void setUpSizeSelector(QMWidget& selector, std::int32_t stored);
    void setUpHelpButton(QMWidget& button);
};
