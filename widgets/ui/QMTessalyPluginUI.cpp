// SPDX-License-Identifier: GPL-3.0-or-later
// Opening, size and help. The looks are in QMTessalyPluginUIAppearance.cpp.
#include "widgets/ui/QMTessalyPluginUI.h"

#include "services/preferences/EditorPreferences.h"
#include "widgets/base/IQMItemList.h"
#include "widgets/base/QMWidget.h"
#include "widgets/ui/UISizeSteps.h"

#include <functional>
#include <utility>

namespace {

/// A button has settled on a state when the gesture on it ends.
void whenPicked(QMWidget& button, std::function<void(std::int32_t)> act) {
    button.setGestureListener([act = std::move(act)](std::uint32_t, QMWidget::GesturePhase phase,
                                                     const QMWidget& picked) {
        if (phase == QMWidget::GesturePhase::end)
            act(static_cast<std::int32_t>(picked.getSlotValue(0)));
    });
}

} // namespace

QMTessalyPluginUI::QMTessalyPluginUI(INoxPlugIn& plugIn, IQMPlugInUIHost* uiHost,
                                     QMWidgetFactory widgetFactory, const Tables& editorTables,
                                     const AppearanceOffers& offers)
    : QMWidgetPluginUI(plugIn, uiHost, std::move(widgetFactory), editorTables)
    , preferences(offers, getProductCode()) {}

void QMTessalyPluginUI::setupAfterCreation() {
    if (!buildWidgets())
        return;
    widgetsBuilt();
    const std::int32_t stored =
        getSizeKey().empty() ? UISizeSteps::defaultPercent
                             : QM::readMagnification(getSizeKey(), UISizeSteps::defaultPercent);
    std::int32_t percent = UISizeSteps::percentOfStored(stored);
    QMWidget* const selector = widgetOfID(sizeSelectorID);
    if (selector != nullptr)
        setUpSizeSelector(*selector, stored);
    if (QMWidget* const button = widgetOfID(helpButtonID))
        setUpHelpButton(*button);
    applyAppearance();
    // The selector takes a percentage for a number of clicks, and what it then shows is the size.
    if (selector != nullptr)
        percent = UISizeSteps::percentOfItem(static_cast<std::int32_t>(selector->getSlotValue(0)));
    applyScalePercent(percent, Keep::yes);
}

void QMTessalyPluginUI::setUpSizeSelector(QMWidget& selector, std::int32_t stored) {
    if (auto* const list = dynamic_cast<IQMItemList*>(&selector))
        list->setItems(UISizeSteps::itemTexts(), 0);
    selector.setParameterValue(0, stored, false);
    whenPicked(selector,
               [this](std::int32_t item) { setScalePercent(UISizeSteps::percentOfItem(item)); });
}

void QMTessalyPluginUI::setUpHelpButton(QMWidget& button) {
    whenPicked(button, [this](std::int32_t state) { setHelpEnabled(state != 0); });
}
