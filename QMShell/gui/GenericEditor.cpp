// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/gui/GenericEditor.h"

#include "widgets/ui/IQMPlugInUI.h"

#include <utility>

std::function<std::shared_ptr<IQMPlugInUI>(INoxPlugIn&, void*)>
genericEditorsOf(QMPlugInUIFactory factory) {
    return [make = std::move(factory)](INoxPlugIn& plugIn,
                                       void* parent) -> std::shared_ptr<IQMPlugInUI> {
        std::shared_ptr<IQMPlugInUI> ui =
            make ? make(plugIn, nullptr, PlugInUINumber::generic) : nullptr;
        if (!ui)
            return nullptr;
        ui->setupAfterCreation();
        juce::Component& component = ui->component();
        component.setBounds(ui->getScaledSize());
        if (parent != nullptr) {
            component.addToDesktop(0, parent);
            component.setVisible(true);
        }
        return ui;
    };
}
