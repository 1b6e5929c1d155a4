// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/ControlWidgetTypes.h"

#include "widgets/base/QMWidgetFactory.h"
#include "widgets/controls/QMFaderWidget.h"
#include "widgets/controls/QMHorizontalFaderWidget.h"
#include "widgets/controls/QMKnobStripWidget.h"
#include "widgets/controls/QMKnobWidget.h"
#include "widgets/controls/QMParameterReadoutWidget.h"

namespace {

template <typename Widget>
std::unique_ptr<QMWidget> make(const QMWidgetDescriptor&) {
    return std::make_unique<Widget>();
}

std::unique_ptr<QMWidget> makeKnobStrip(const QMWidgetDescriptor& descriptor) {
    return std::make_unique<QMKnobStripWidget>(
        dynamic_cast<const KnobStyleRecord*>(descriptor.style));
}

} // namespace

void addControlWidgetTypes(QMWidgetFactory& factory) {
    using Items = QMWidgetFactory::Items;
    using Readout = QMWidgetFactory::Readout;
    factory.add(0, {make<QMKnobWidget>, Items::none, Readout::none});
    factory.add(1, {makeKnobStrip, Items::none, Readout::above});
    factory.add(31, {makeKnobStrip, Items::none, Readout::above});
    factory.add(21, {make<QMFaderWidget>, Items::none, Readout::aboveFader});
    factory.add(50, {make<QMFaderWidget>, Items::none, Readout::aboveFader});
    factory.add(51, {make<QMHorizontalFaderWidget>, Items::none, Readout::none});
    factory.add(26, {make<QMParameterReadoutWidget>, Items::none, Readout::none});
    factory.setReadoutCreator(make<QMParameterReadoutWidget>);
}
