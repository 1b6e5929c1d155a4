// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttons/PaneButton.h"

#include "widgets/buttons/SegmentRow.h"
#include "widgets/drawing/WidgetStyle.h"

#include <algorithm>
#include <cmath>

PaneButton::PaneButton(int panes, Texts textsToShow)
    : QMTrackedMultistateButtonWidget(panes)
    , texts(textsToShow) {}

juce::String PaneButton::paneText(int pane) const {
    const juce::String text = itemText(pane);
    if (text.isEmpty())
        return juce::String(pane + 1);
    return texts == Texts::initials ? text.substring(0, 1) : text;
}

juce::Font PaneButton::textFont() const {
    const float height = std::min(WidgetStyle::fontHeight * getMagnification(),
                                  0.75f * static_cast<float>(getHeight()));
    return WidgetStyle::get().font(TypefaceStyle::plain, std::max(1.0f, height));
}

int PaneButton::getIdealWidth() const {
    const juce::Font font = textFont();
    float widest = 0.0f;
    for (int pane = 0; pane < getStateCount(); ++pane)
        widest = std::max(widest, font.getStringWidthFloat(paneText(pane)));
    return getStateCount() * static_cast<int>(std::ceil(widest + 0.7f * font.getHeight()));
}

void PaneButton::paint(juce::Graphics& g) {
    const juce::Colour offColour = getBaseColour().darker(0.3f);
    const juce::Colour onColour = getContrastColour();
    const float corner = 0.2f * static_cast<float>(getHeight());
    g.setFont(textFont());
    int pane = 0;
    for (const RowSegment& segment : segmentRow(getLocalArea(), getStateCount())) {
        const bool isLit = pane == getState();
        const juce::Colour base =
            isLit ? onColour.withMultipliedAlpha(hasPressedLook() ? 0.7f : 1.0f) : offColour;
        const juce::Rectangle<float> face = segment.area.toFloat();
        drawPill(g, face, corner, base.withMultipliedAlpha(opacity()),
                 base.darker(0.25f).withMultipliedAlpha(opacity()), segment.joined);
        drawSegmentJoint(g, segment.area, segment.joined);
        g.setColour(
            (isLit ? onColour : offColour).contrasting(0.9f).withMultipliedAlpha(opacity()));
        g.drawFittedText(paneText(pane), segment.area.reduced(1, 0), juce::Justification::centred,
                         1);
        ++pane;
    }
}
