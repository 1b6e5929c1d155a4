// SPDX-License-Identifier: GPL-3.0-or-later
// From the tables to the widgets.
#include "plugin-model/INoxPlugIn.h"
#include "widgets/base/IQMDisplayWidget.h"
#include "widgets/base/IQMItemList.h"
#include "widgets/base/IQMReadoutOwner.h"
#include "widgets/base/IQMTextColour.h"
#include "widgets/base/QMWidget.h"
#include "widgets/ui/QMWidgetPluginUI.h"

#include <algorithm>
#include <cmath>

namespace {

/// A menu whose label stands beside it and is not its name.
constexpr std::uint32_t flatMenuType = 22;

/// More items than anybody chooses from; beyond it a parameter is no list.
constexpr int mostItems = 1000;

/// A readout over a fader is that much wider on each side (design units) and begins that much above
/// the fader (pixels, at any magnification).
constexpr int faderReadoutMargin = 3;
constexpr float faderReadoutRise = 9.0F;

} // namespace

bool QMWidgetPluginUI::buildWidgets() {
    if (built)
        return false;
    built = true;
    for (const ZulControlAreaDescriptor& area : tables.areas) {
        if (area.widgetID == 0)
            break;
        buildArea(area);
    }
    return true;
}

const QMWidgetDescriptor* QMWidgetPluginUI::descriptorOf(FourCharCode widgetID) const {
    for (const QMWidgetDescriptor& descriptor : tables.widgets) {
        if (descriptor.widgetID == widgetID)
            return &descriptor;
        if (descriptor.widgetID == 0)
            break;
    }
    return nullptr;
}

juce::String QMWidgetPluginUI::helpOf(FourCharCode widgetID) const {
    for (const QMWidgetHelpEntry& entry : tables.help) {
        if (entry.text == nullptr)
            break;
        if (entry.widgetID == widgetID)
            return juce::String::fromUTF8(entry.text);
    }
    return {};
}

void QMWidgetPluginUI::buildArea(const ZulControlAreaDescriptor& area) {
    const QMWidgetDescriptor* const descriptor = descriptorOf(area.widgetID);
    if (descriptor == nullptr)
        return;
    std::unique_ptr<QMWidget> made = factory.create(*descriptor);
    if (made == nullptr)
        return;
    const QMWidgetFactory::Type& type = *factory.typeOf(descriptor->widgetType);
    QMWidget& widget = keep(std::move(made));
    QMWidget* const readout = makeReadout(widget, *descriptor, type.readout);
    const juce::Rectangle<int> designArea = areaOfWidget(area);

    configure(widget, *descriptor, type.items, designArea);
    const bool hasDisplay = bindDisplays(widget, *descriptor);
    if (widget.getHighestBoundSlot() > 0 || hasDisplay || descriptor->keepInList)
        parameterWidgets.push_back(&widget);
    widget.setTooltip(helpOf(widget.getWidgetID()));
    if (readout == nullptr)
        return;
    // After its control: a readout that overlaps it lies above.
    QMWidgetDescriptor ofReadout = *descriptor;
    ofReadout.widgetID = readoutID(descriptor->widgetID);
    configure(*readout, ofReadout, QMWidgetFactory::Items::none,
              areaOfReadout(designArea, type.readout));
    if (readout->getHighestBoundSlot() > 0)
        parameterWidgets.push_back(readout);
}

QMWidget* QMWidgetPluginUI::makeReadout(QMWidget& control, const QMWidgetDescriptor& descriptor,
                                        QMWidgetFactory::Readout place) {
    if (place == QMWidgetFactory::Readout::none)
        return nullptr;
    QMWidgetDescriptor ofReadout = descriptor;
    ofReadout.widgetID = readoutID(descriptor.widgetID);
    std::unique_ptr<QMWidget> made = factory.createReadout(ofReadout);
    if (made == nullptr)
        return nullptr;
    QMWidget& readout = keep(std::move(made));
    readouts.push_back(&readout);
    if (auto* const coloured = dynamic_cast<IQMTextColour*>(&readout))
        coloured->setTextColour(textColour);
    if (auto* const owner = dynamic_cast<IQMReadoutOwner*>(&control))
        owner->setReadout(&readout);
    return &readout;
}

QMWidget& QMWidgetPluginUI::keep(std::unique_ptr<QMWidget> made) {
    widgets.push_back(std::move(made));
    return *widgets.back();
}

// Where.

juce::Rectangle<int> QMWidgetPluginUI::areaOfWidget(const ZulControlAreaDescriptor& area) {
    const std::int32_t side = headerHeight - 6;
    const auto inHeader = [&](std::int32_t left, std::int32_t buttonsRight) {
        headerButtonsRight = buttonsRight;
        return juce::Rectangle<int>(left, 3, side, side);
    };
    if (headerHeight != 0) {
        switch (area.widgetID) {
        case fourCharCode("help"):
            return inHeader(4, headerHeight + 6);
        case fourCharCode("smlB"):
            return inHeader(headerHeight + 2, 2 * (headerHeight + 2));
        case fourCharCode("grph"):
            return inHeader(2 * headerHeight, 3 * side + 20);
        default:
            break;
        }
    }
    return {area.left, area.top + headerHeight, area.width, area.height};
}

juce::Rectangle<int> QMWidgetPluginUI::areaOfReadout(juce::Rectangle<int> control,
                                                     QMWidgetFactory::Readout place) const {
    const juce::Rectangle<int> above =
        control.withHeight(readoutHeight).translated(0, -readoutHeight);
    if (place != QMWidgetFactory::Readout::aboveFader)
        return above;
    const float top = static_cast<float>(control.getY()) - faderReadoutRise / getMagnification();
    return above.withY(static_cast<int>(top)).expanded(faderReadoutMargin, 0);
}

// What.

void QMWidgetPluginUI::configure(QMWidget& widget, const QMWidgetDescriptor& descriptor,
                                 QMWidgetFactory::Items items, juce::Rectangle<int> designArea) {
    widget.setMagnification(getMagnification());
    const Slots slots = bindParameters(widget, descriptor, items);
    connectWidget(widget, slots);
    if (descriptor.parameterIDs.size() <= 2 && !slots.empty())
        addGenericTarget(widget, static_cast<std::int32_t>(slots.begin()->second));
    const juce::String label = juce::String::fromUTF8(descriptor.label);
    if (label.isNotEmpty() && descriptor.widgetType != flatMenuType)
        widget.setName(label);
    widget.setWidgetID(descriptor.widgetID);
    widgetsByID[descriptor.widgetID] = &widget;
    widget.setDesignArea(designArea);
    place(widget);
    raiseExtents(widget);
    addAndMakeVisible(widget);
}

QMWidgetPluginUI::Slots QMWidgetPluginUI::bindParameters(QMWidget& widget,
                                                         const QMWidgetDescriptor& descriptor,
                                                         QMWidgetFactory::Items items) {
    const bool isUnnamed = descriptor.label == nullptr || *descriptor.label == '\0';
    Slots slots;
    for (std::uint32_t slot = 0; slot < descriptor.parameterIDs.size(); ++slot) {
        const FourCharCode id = descriptor.parameterIDs[slot];
        const std::int32_t index = id == placeholderID ? -1 : parameterIndex(id);
        if (index < 0 || slot >= widget.getNumParameterSlots())
            continue;
        widget.setParameter(slot, id);
        describeSlot(widget, slot, index, items);
        if (isUnnamed)
            widget.setName(juce::String::fromUTF8(parameterName(index).c_str()));
        slots[slot] = static_cast<std::uint32_t>(index);
    }
    return slots;
}

void QMWidgetPluginUI::describeSlot(QMWidget& widget, std::uint32_t slot, std::int32_t index,
                                    QMWidgetFactory::Items items) {
    const QMPlugInAccess::Hold plugIn = access().hold();
    if (!plugIn)
        return;
    widget.setDisplayResolution(slot, plugIn->step(index), false);
    widget.setDisplayScale(slot, plugIn->factor(index), false);
    const double value = plugIn->parameterValue(index);
    auto* const list = dynamic_cast<IQMItemList*>(&widget);
    if (list != nullptr && items != QMWidgetFactory::Items::none) {
        const auto last = static_cast<int>(std::lround(plugIn->maximum(index)));
        const int first = items == QMWidgetFactory::Items::fromZero
                              ? 0
                              : static_cast<int>(std::lround(plugIn->minimum(index)));
        juce::StringArray texts;
        for (int item = first; item <= std::min(last, first + mostItems - 1); ++item)
            texts.add(juce::String::fromUTF8(parameterText(index, item).c_str()));
        list->setItems(texts, static_cast<int>(std::lround(value)) - first);
    }
    widget.setSlotMinimum(slot, plugIn->minimum(index), false);
    widget.setSlotMaximum(slot, plugIn->maximum(index), false);
    widget.setSlotDefault(slot, plugIn->defaultValue(index), false);
    widget.writeDisplayValue(slot, value, false);
}

bool QMWidgetPluginUI::bindDisplays(QMWidget& widget, const QMWidgetDescriptor& descriptor) {
    auto* const display = dynamic_cast<IQMDisplayWidget*>(&widget);
    if (display == nullptr)
        return false;
    addDisplay(*display);
    std::uint32_t slot = 0;
    for (const FourCharCode id : descriptor.displayIDs) {
        if (id != placeholderID && bindMeter(*display, slot, id))
            ++slot;
    }
    return slot > 0;
}
