// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/gui/QMShell_GUI.h"

#include "QMShell/gui/QMShell_ViewComponent.h"

#include <utility>

QMShell_GUI::QMShell_GUI(QMPlugInUIFactory uiFactory)
    : makeUI(std::move(uiFactory)) {}

QMShell_GUI::~QMShell_GUI() {
    setView(nullptr);
}

void QMShell_GUI::setView(QMShell_ViewComponent* newView) {
    if (ownsView_)
        delete view_;
    view_ = newView;
    ownsView_ = false;
}

QMShell_ViewComponent* QMShell_GUI::createView() {
    auto created = std::make_unique<QMShell_ViewComponent>(*this, makeUI);
    created->setSizeListener(
        [this](std::int32_t height, std::int32_t width) { setViewContainerSize(height, width); });
    setView(created.release());
    ownsView_ = true;
    return view_;
}
