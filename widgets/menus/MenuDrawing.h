// SPDX-License-Identifier: GPL-3.0-or-later
// What widgets with menus draw alike.
#pragma once

#include <juce_graphics/juce_graphics.h>

/// The sign of a menu that drops down, into a square, in the colour that is set.
void drawMenuArrow(juce::Graphics& g, juce::Rectangle<float> area);

/// A dark window with a shine on its upper half, for want of the pictures of one.
void drawMenuWindow(juce::Graphics& g, juce::Rectangle<float> area, juce::Colour background);
