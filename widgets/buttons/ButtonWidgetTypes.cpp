// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/ButtonWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/buttons/QM2PaneButton.h"
#include "widgets/buttons/QM3PaneButton.h"
#include "widgets/buttons/QM3PaneButton_SML.h"
#include "widgets/buttons/QMGraphicToggleButton.h"
#include "widgets/buttons/QMHelpToggleButton.h"
#include "widgets/buttons/QMListenToggleButton.h"
#include "widgets/buttons/QMPillToggleButton.h"
#include "widgets/buttons/QMRadioSelector.h"
#include "widgets/buttons/QMTextToggleButton.h"
#include "widgets/buttons/QMToggleButton.h"

namespace {

/// One that looks the same whatever the descriptor says.
template <typename Widget>
std::unique_ptr<QMWidget> plain(const QMWidgetDescriptor&) {
    return std::make_unique<Widget>();
}

template <typename Widget>
std::unique_ptr<QMWidget> styled(const QMWidgetDescriptor& descriptor) {
    return std::make_unique<Widget>(descriptor.style);
}

std::unique_ptr<QMWidget> toggleWithNameBeside(const QMWidgetDescriptor& descriptor) {
    return std::make_unique<QMToggleButton>(descriptor.style, QMToggleButton::Form::nameBeside);
}

} // namespace

void addButtonWidgetTypes(QMWidgetFactory& factory) {
    factory.add(2, {styled<QMToggleButton>});
    factory.add(3, {styled<QMListenToggleButton>});
    factory.add(27, {plain<QM3PaneButton>});
    factory.add(28, {plain<QM3PaneButton_SML>});
    factory.add(29, {plain<QM2PaneButton>});
    factory.add(32, {plain<QMHelpToggleButton>});
    factory.add(37, {styled<QMTextToggleButton>});
    factory.add(38, {toggleWithNameBeside});
    factory.add(45, {plain<QMGraphicToggleButton>});
    factory.add(46, {plain<QMPillToggleButton>});
    factory.add(49, {plain<QMRadioSelector>, QMWidgetFactory::Items::named});
}
