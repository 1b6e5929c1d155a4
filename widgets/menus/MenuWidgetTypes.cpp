// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/MenuWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/menus/QMFlatMenuGridWidget.h"
#include "widgets/menus/QMFlatPopupMenuWidget.h"
#include "widgets/menus/QMPopupMenuWidget.h"

namespace {

using Items = QMWidgetFactory::Items;

template <typename Widget>
std::unique_ptr<QMWidget> plain(const QMWidgetDescriptor&) {
    return std::make_unique<Widget>();
}

std::unique_ptr<QMWidget> popupFromZero(const QMWidgetDescriptor&) {
    return std::make_unique<QMPopupMenuWidget>(QMPopupMenuWidget::FirstItem::zero);
}

} // namespace

void addMenuWidgetTypes(QMWidgetFactory& factory) {
    factory.add(8, {plain<QMPopupMenuWidget>, Items::named});
    factory.add(16, {plain<QMPopupMenuWidget>, Items::named});
    factory.add(22, {plain<QMFlatPopupMenuWidget>, Items::fromZero});
    factory.add(23, {plain<QMFlatPopupMenuWidget>, Items::fromZero});
    factory.add(47, {popupFromZero, Items::fromZero});
    factory.add(54, {plain<QMFlatMenuGridWidget>, Items::fromZero});
}
