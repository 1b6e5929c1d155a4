// SPDX-License-Identifier: GPL-3.0-or-later
// Placement and what becomes of the widgets. How they are made is in QMWidgetPluginUIBuilding.cpp.
#include "widgets/ui/QMWidgetPluginUI.h"

#include "widgets/base/IQMReadoutOwner.h"
#include "widgets/base/IQMTextColour.h"
#include "widgets/base/QMWidget.h"
#include "widgets/ui/WidgetPlacement.h"

#include <algorithm>

QMWidgetPluginUI::QMWidgetPluginUI(INoxPlugIn& plugIn, IQMPlugInUIHost* hostOfUI,
                                   QMWidgetFactory widgetFactory, const Tables& editorTables)
    : QMPlugInUI(plugIn, hostOfUI)
    , factory(std::move(widgetFactory))
    , tables(editorTables) {}

QMWidgetPluginUI::~QMWidgetPluginUI() {
    disconnect();
    // Neither of a pair finds the other gone.
    for (const auto& widget : widgets) {
        if (auto* const owner = dynamic_cast<IQMReadoutOwner*>(widget.get()))
            owner->setReadout(nullptr);
    }
}

void QMWidgetPluginUI::setupAfterCreation() {
    buildWidgets();
}

QMWidget* QMWidgetPluginUI::widgetOfID(FourCharCode widgetID) const {
    const auto found = widgetsByID.find(widgetID);
    return found == widgetsByID.end() ? nullptr : found->second;
}

void QMWidgetPluginUI::setTextColour(juce::Colour colour, Captions captions) {
    textColour = colour;
    for (const auto& widget : widgets) {
        auto* const coloured = dynamic_cast<IQMTextColour*>(widget.get());
        if (coloured == nullptr)
            continue;
        if (captions == Captions::coloured || isReadout(*widget))
            coloured->setTextColour(colour);
        else
            coloured->setTextColour({});
    }
}

bool QMWidgetPluginUI::isReadout(const QMWidget& widget) const {
    return std::find(readouts.begin(), readouts.end(), &widget) != readouts.end();
}

std::vector<const QMWidget*> QMWidgetPluginUI::laidOutWidgets() const {
    std::vector<const QMWidget*> laidOut = QMPlugInUI::laidOutWidgets();
    std::erase_if(laidOut, [this](const QMWidget* widget) { return isReadout(*widget); });
    return laidOut;
}

// Placement.

void QMWidgetPluginUI::placeWidget(QMWidget& widget, juce::Rectangle<int> designArea) {
    widget.setDesignArea(designArea);
    place(widget);
    measure();
}

void QMWidgetPluginUI::place(QMWidget& widget) {
    widget.setBounds(WidgetPlacement::scaled(widget.getDesignArea(), getMagnification()));
}

void QMWidgetPluginUI::placeContents() {
    for (const auto& widget : widgets) {
        widget->setMagnification(getMagnification());
        place(*widget);
    }
    measure();
}

void QMWidgetPluginUI::measure() {
    scaledExtent = {};
    designExtent = {};
    for (const auto& widget : widgets)
        raiseExtents(*widget);
}

void QMWidgetPluginUI::raiseExtents(const QMWidget& widget) {
    const auto raise = [](juce::Rectangle<int>& extent, juce::Rectangle<int> area) {
        extent.setSize(std::max(extent.getWidth(), area.getRight()),
                       std::max(extent.getHeight(), area.getBottom()));
    };
    raise(scaledExtent, widget.getBounds());
    raise(designExtent, widget.getDesignArea());
}
