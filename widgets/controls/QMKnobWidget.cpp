// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/QMKnobWidget.h"

namespace {

constexpr std::int32_t usualType = 7;
constexpr float disabledOpacity = 0.5f;

} // namespace

QMKnobWidget::QMKnobWidget() {
    knob.setLook(KnobTypes::get(usualType).look);
}

void QMKnobWidget::paint(juce::Graphics& g) {
    if (!isEnabled())
        g.beginTransparencyLayer(disabledOpacity);
    const int size = juce::jmin(getWidth(), getHeight());
    knob.draw(g, getLocalBounds().withSizeKeepingCentre(size, size), getValue());
    if (!isEnabled())
        g.endTransparencyLayer();
}
