// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/QMPlugInUIHolder.h"

#include "widgets/base/QMParentColorSource.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/ui/IQMPlugInUI.h"

QMPlugInUIHolder::QMPlugInUIHolder() {
    addAndMakeVisible(viewport);
}

QMPlugInUIHolder::~QMPlugInUIHolder() {
    viewport.setViewedComponent(nullptr, false);
}

void QMPlugInUIHolder::setUI(IQMPlugInUI* newUI) {
    if (newUI == ui)
        return;
    viewport.setViewedComponent(nullptr, false);
    ui = newUI;
    if (ui != nullptr) {
        resized();
        viewport.setViewedComponent(&ui->component(), false);
    }
    repaint();
}

juce::Colour QMPlugInUIHolder::getBaseColour() const {
    const auto* const above = findParentComponentOfClass<QMColorSource>();
    return above == nullptr ? QMParentColorSource().getBaseColour() : above->getBaseColour();
}

void QMPlugInUIHolder::paint(juce::Graphics& g) {
    g.fillAll(getBaseColour());
    if (ui != nullptr)
        return;
    const WidgetStyle& style = WidgetStyle::get();
    g.setColour(style.colour(WidgetColours::text));
    g.setFont(style.font(TypefaceStyle::plain));
    g.drawText("No Plugin Selected", getLocalBounds(), juce::Justification::centred);
}

void QMPlugInUIHolder::resized() {
    viewport.setBounds(getLocalBounds());
}
