// SPDX-License-Identifier: GPL-3.0-or-later
// The bezel around a lamp, for want of a picture of one.
#pragma once

#include <juce_graphics/juce_graphics.h>

/// Into the square of this side at the origin. lampDiameter is part of the side; glow is the lamp's
/// colour when it shines, else transparent.
void drawLampBezel(juce::Graphics& g, float side, float lampDiameter, float opacity, bool pressed,
                   juce::Colour glow);
