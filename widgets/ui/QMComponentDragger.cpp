// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMComponentDragger.h"

#include "widgets/ui/QMEditContainer.h"

QMComponentDragger::QMComponentDragger(QMEditContainer& container, QMSelectable& selectableToDrag)
    : owner(container)
    , dragged(selectableToDrag)
    , covered(selectableToDrag.getComponent()) {
    setAccessible(false);
    setMouseClickGrabsKeyboardFocus(false);
    owner.addChildComponent(*this);
    covered->addComponentListener(this);
    follow();
}

QMComponentDragger::~QMComponentDragger() {
    if (covered != nullptr)
        covered->removeComponentListener(this);
}

bool QMComponentDragger::isHit(const juce::Rectangle<int>& lasso) const {
    return getBounds().intersects(lasso);
}

std::string QMComponentDragger::report(bool hit) const {
    const juce::Rectangle<int> area = getBounds();
    return (juce::String(hit ? "* " : "  ") +
            juce::String::formatted("Drag Area = %d, %d; %d, %d\n", area.getX(), area.getY(),
                                    area.getWidth(), area.getHeight()))
        .toStdString();
}

void QMComponentDragger::paint(juce::Graphics& g) {
    const juce::Rectangle<float> frame = getLocalBounds().toFloat().reduced(0.5F);
    if (dragged.isSelected()) {
        g.setColour(juce::Colours::orange.withAlpha(0.25F));
        g.fillRect(frame);
        g.setColour(juce::Colours::orange);
    } else {
        g.setColour(juce::Colours::white.withAlpha(0.4F));
    }
    g.drawRect(frame, 1.0F);
}

void QMComponentDragger::mouseDown(const juce::MouseEvent& event) {
    lassoes = event.mods.isCommandDown();
    if (lassoes) {
        owner.mouseDown(event.getEventRelativeTo(&owner));
        return;
    }
    decidesOnRelease = owner.selection().addToSelectionOnMouseDown(this, event.mods);
    owner.beginDrag();
}

void QMComponentDragger::mouseDrag(const juce::MouseEvent& event) {
    if (lassoes)
        owner.mouseDrag(event.getEventRelativeTo(&owner));
    else if (event.mouseWasDraggedSinceMouseDown())
        owner.dragSelected(event.getOffsetFromDragStart());
}

void QMComponentDragger::mouseUp(const juce::MouseEvent& event) {
    if (lassoes) {
        owner.mouseUp(event.getEventRelativeTo(&owner));
        return;
    }
    owner.selection().addToSelectionOnMouseUp(
        this, event.mods, event.mouseWasDraggedSinceMouseDown(), decidesOnRelease);
}

void QMComponentDragger::componentMovedOrResized(juce::Component&, bool, bool) {
    follow();
}

void QMComponentDragger::componentVisibilityChanged(juce::Component&) {
    follow();
}

void QMComponentDragger::follow() {
    setBounds(covered->getBounds());
    setVisible(covered->isVisible());
}
