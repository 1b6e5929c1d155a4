// SPDX-License-Identifier: GPL-3.0-or-later
// Lies over a widget while the layout is edited, so that the mouse picks the widget up instead of
// using it. A drag moves everything selected; with Control (Command on a Mac) it is a lasso, since
// a panel may be covered with widgets all over. [message thread]
#pragma once

#include "widgets/base/QMSelectable.h"

#include <string>

class QMEditContainer;

class QMComponentDragger final : public juce::Component, private juce::ComponentListener {
public:
    /// On the container, over the widget; the container must outlive it, and the widget must be
    /// there whenever it is used.
    QMComponentDragger(QMEditContainer& container, QMSelectable& selectableToDrag);
    ~QMComponentDragger() override;

    [[nodiscard]] QMSelectable& selectable() const { return dragged; }

    /// Whether a lasso catches it, and what designers are told of that.
    [[nodiscard]] bool isHit(const juce::Rectangle<int>& lasso) const;
    [[nodiscard]] std::string report(bool hit) const;

    void paint(juce::Graphics& g) override;
    void mouseDown(const juce::MouseEvent& event) override;
    void mouseDrag(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;

private:
    void componentMovedOrResized(juce::Component& component, bool moved, bool resized) override;
    void componentVisibilityChanged(juce::Component& component) override;

    void follow();

    QMEditContainer& owner;
    QMSelectable& dragged;
    juce::Component::SafePointer<juce::Component> covered; ///< the same widget
    bool lassoes = false;
    bool decidesOnRelease = false; ///< a press on a selected widget may become a drag of all
};
