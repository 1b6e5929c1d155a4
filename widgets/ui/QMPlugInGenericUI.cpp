// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMPlugInGenericUI.h"

#include "plugin-model/INoxPlugIn.h"
#include "services/preferences/EditorPreferences.h"
#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/QMWidget.h"
#include "widgets/ui/GenericEditorDescribing.h"
#include "widgets/ui/WidgetPlacement.h"

#include <algorithm>

namespace {

constexpr std::int32_t defaultPercent = 100;

} // namespace

QMPlugInGenericUI::QMPlugInGenericUI(INoxPlugIn& plugIn, IQMPlugInUIHost* hostOfUI,
                                     const GenericEditorContentFactory& makesContent,
                                     std::string keyOfSize)
    : QMPlugInUI(plugIn, hostOfUI)
    , content(makesContent(describe())) {
    setSizeKey(std::move(keyOfSize));
    for (QMWidget* const widget : content->parameterWidgets())
        connect(*widget);
    for (QMWidget* const widget : content->displayWidgets()) {
        if (auto* const display = dynamic_cast<IQMDisplayWidget*>(widget))
            addDisplay(*display);
    }
    viewport.setViewedComponent(&content->component(), false);
    viewport.setScrollBarsShown(true, false);
    addAndMakeVisible(viewport);
    const juce::Rectangle<int> size = getScaledSize();
    setSize(size.getWidth(), size.getHeight());
}

QMPlugInGenericUI::~QMPlugInGenericUI() {
    disconnect();
    viewport.setViewedComponent(nullptr, false);
}

GenericEditorDescription QMPlugInGenericUI::describe() const {
    const QMPlugInAccess::Hold plugIn = access().hold();
    return plugIn ? describeForGenericEditor(*plugIn, meters()) : GenericEditorDescription();
}

void QMPlugInGenericUI::connect(QMWidget& widget) {
    Slots slots;
    for (std::uint32_t slot = 0; slot < widget.getNumParameterSlots(); ++slot) {
        const FourCharCode id = widget.getParameterID(slot);
        const std::int32_t index = id == QMWidget::noParameter ? -1 : parameterIndex(id);
        if (index >= 0)
            slots[slot] = static_cast<std::uint32_t>(index);
    }
    connectWidget(widget, slots);
    if (slots.size() == 1)
        addGenericTarget(widget, static_cast<std::int32_t>(slots.begin()->second));
}

void QMPlugInGenericUI::setupAfterCreation() {
    const std::int32_t stored =
        getSizeKey().empty() ? defaultPercent : QM::readMagnification(getSizeKey(), defaultPercent);
    applyScalePercent(stored > 0 ? stored : defaultPercent, Keep::no);
}

juce::Rectangle<int> QMPlugInGenericUI::getDesignSize() const {
    return content->preferredSize().withZeroOrigin();
}

juce::Rectangle<int> QMPlugInGenericUI::getScaledSize() const {
    return WidgetPlacement::scaled(getDesignSize(), getMagnification());
}

void QMPlugInGenericUI::placeContents() {
    content->setMagnification(getMagnification());
    resized();
}

void QMPlugInGenericUI::resized() {
    viewport.setBounds(getLocalBounds());
    int width = getWidth();
    if (content->heightFor(width) > getHeight())
        width = std::max(0, width - viewport.getScrollBarThickness());
    content->component().setSize(width, std::max(content->heightFor(width), getHeight()));
}
