// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of a product that has none of its own: a control for each parameter, in a view that
// scrolls when the window is too small for them. [message thread]
#pragma once

#include "widgets/ui/IGenericEditorContent.h"
#include "widgets/ui/QMPlugInUI.h"

class QMPlugInGenericUI final : public QMPlugInUI {
public:
    /// The size key is where the user's size of this editor is kept, in percent; empty keeps none.
    /// The other two as for QMPlugInUI.
    QMPlugInGenericUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost,
                      const GenericEditorContentFactory& makesContent, std::string sizeKey);
    ~QMPlugInGenericUI() override;

    /// Takes the size that the user chose.
    void setupAfterCreation() override;

    [[nodiscard]] juce::Rectangle<int> getDesignSize() const override;
    [[nodiscard]] juce::Rectangle<int> getScaledSize() const override;

    /// Any size will do.
    void resized() override;

private:
    [[nodiscard]] GenericEditorDescription describe() const;
    void connect(QMWidget& widget);
    void placeContents() override;

    std::unique_ptr<IGenericEditorContent> content;
    juce::Viewport viewport;
};
