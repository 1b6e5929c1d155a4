// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMEditContainer.h"

#include "widgets/base/QMWidget.h"
#include "widgets/ui/WidgetPlacement.h"

#include <cmath>
#include <cstdio>

QMEditContainer::QMEditContainer()
    : printer([](const std::string& text) {
        std::fputs(text.c_str(), stdout);
        std::fflush(stdout);
    }) {
    addKeyListener(this);
    selected.addChangeListener(this);
}

QMEditContainer::~QMEditContainer() {
    selected.removeChangeListener(this);
    removeKeyListener(this);
}

void QMEditContainer::setLayoutEditEnabled(bool flag) {
    if (!flag)
        setLayoutEditing(false);
    layoutEditEnabled = flag;
}

void QMEditContainer::setLayoutEditing(bool flag) {
    if (flag == layoutEditing || !layoutEditEnabled)
        return;
    layoutEditing = flag;
    lasso.reset();
    selected.deselectAll();
    areasBeforeDrag.clear();
    draggers.clear();
    if (layoutEditing)
        coverWidgets();
    setWantsKeyboardFocus(layoutEditing);
    if (layoutEditing && isShowing())
        grabKeyboardFocus();
}

void QMEditContainer::coverWidgets() {
    for (QMSelectable* const selectable : candidates.selectables()) {
        if (dynamic_cast<QMWidget*>(selectable->getComponent()) != nullptr)
            draggers.push_back(std::make_unique<QMComponentDragger>(*this, *selectable));
    }
}

std::vector<QMWidget*> QMEditContainer::selectedWidgets() const {
    std::vector<QMWidget*> widgets;
    for (const QMComponentDragger* const dragger : selected.getItemArray())
        widgets.push_back(dynamic_cast<QMWidget*>(dragger->selectable().getComponent()));
    return widgets;
}

void QMEditContainer::place(QMWidget& widget, juce::Rectangle<int> designArea) {
    widget.setDesignArea(designArea);
    widget.setBounds(WidgetPlacement::scaled(designArea, layoutMagnification()));
}

void QMEditContainer::alignSelected(LayoutAlignment alignment) {
    const std::vector<QMWidget*> widgets = selectedWidgets();
    std::vector<juce::Rectangle<int>> areas;
    for (const QMWidget* const widget : widgets)
        areas.push_back(widget->getDesignArea());
    align(areas, alignment);
    for (std::size_t i = 0; i < widgets.size(); ++i)
        place(*widgets[i], areas[i]);
    layoutEdited();
}

void QMEditContainer::beginDrag() {
    grabKeyboardFocus();
    areasBeforeDrag.clear();
    for (QMWidget* const widget : selectedWidgets())
        areasBeforeDrag.emplace_back(widget, widget->getDesignArea());
}

void QMEditContainer::dragSelected(juce::Point<int> offset) {
    const auto toDesign = [this](int pixels) {
        return static_cast<int>(std::lround(static_cast<float>(pixels) / layoutMagnification()));
    };
    for (const auto& [widget, area] : areasBeforeDrag)
        place(*widget, area.translated(toDesign(offset.x), toDesign(offset.y)));
    layoutEdited();
}

void QMEditContainer::findLassoItemsInArea(juce::Array<QMComponentDragger*>& itemsFound,
                                           const juce::Rectangle<int>& area) {
    for (const auto& dragger : draggers) {
        const juce::Rectangle<int> checked = dragger->selectable().getComponent()->getBounds();
        print("===================\n");
        print(juce::String::formatted("Comp Area = %d, %d; %d, %d\n", checked.getX(),
                                      checked.getY(), checked.getWidth(), checked.getHeight())
                  .toStdString());
        const bool hit = dragger->isVisible() && dragger->isHit(area);
        print(dragger->report(hit));
        if (hit)
            itemsFound.add(dragger.get());
    }
}

void QMEditContainer::mouseDown(const juce::MouseEvent& event) {
    if (!layoutEditing)
        return;
    grabKeyboardFocus();
    if (!event.mods.isShiftDown())
        selected.deselectAll();
    lasso = std::make_unique<juce::LassoComponent<QMComponentDragger*>>();
    addChildComponent(*lasso);
    lasso->beginLasso(event, this);
}

void QMEditContainer::mouseDrag(const juce::MouseEvent& event) {
    if (lasso == nullptr)
        return;
    lasso->toFront(false);
    lasso->dragLasso(event);
}

void QMEditContainer::mouseUp(const juce::MouseEvent&) {
    if (lasso == nullptr)
        return;
    lasso->endLasso();
    lasso.reset();
}

bool QMEditContainer::keyPressed(const juce::KeyPress& key, juce::Component*) {
    if (!layoutEditing)
        return false;
    const std::optional<LayoutAlignment> alignment = alignmentOfKey(key);
    if (!alignment)
        return false;
    alignSelected(*alignment);
    return true;
}

void QMEditContainer::changeListenerCallback(juce::ChangeBroadcaster*) {
    // The frames show what is selected.
    for (const auto& dragger : draggers)
        dragger->repaint();
}

juce::ApplicationCommandTarget* QMEditContainer::getNextCommandTarget() {
    return findFirstTargetParentComponent();
}

void QMEditContainer::getAllCommands(juce::Array<juce::CommandID>& commands) {
    commands.add(editLayout);
    commands.add(selectEverything);
}

void QMEditContainer::getCommandInfo(juce::CommandID command, juce::ApplicationCommandInfo& info) {
    const bool isMode = command == editLayout;
    info.setInfo(isMode ? "Edit Layout" : "Select All",
                 isMode ? "Moves widgets instead of using them" : "Selects every widget", "Layout",
                 0);
    info.setActive(isMode ? layoutEditEnabled : layoutEditing);
    info.setTicked(isMode && layoutEditing);
}

bool QMEditContainer::perform(const InvocationInfo& invocation) {
    switch (invocation.commandID) {
    case editLayout:
        setLayoutEditing(!layoutEditing);
        return true;
    case selectEverything:
        for (const auto& dragger : draggers)
            selected.addToSelection(dragger.get());
        return true;
    default:
        return false;
    }
}
