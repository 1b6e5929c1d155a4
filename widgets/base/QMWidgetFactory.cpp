// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/base/QMWidgetFactory.h"

#include "widgets/base/QMWidget.h"

#include <utility>

void QMWidgetFactory::add(std::uint32_t code, Type type) {
    types[code] = std::move(type);
}

const QMWidgetFactory::Type* QMWidgetFactory::typeOf(std::uint32_t code) const {
    const auto found = types.find(code);
    return found == types.end() ? nullptr : &found->second;
}

std::unique_ptr<QMWidget> QMWidgetFactory::create(const QMWidgetDescriptor& descriptor) const {
    const Type* const type = typeOf(descriptor.widgetType);
    return type != nullptr && type->create ? type->create(descriptor) : nullptr;
}

std::unique_ptr<QMWidget>
QMWidgetFactory::createReadout(const QMWidgetDescriptor& descriptor) const {
    return createsReadout ? createsReadout(descriptor) : nullptr;
}
