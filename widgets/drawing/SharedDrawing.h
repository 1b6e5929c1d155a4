// SPDX-License-Identifier: GPL-3.0-or-later
// Shapes that several widgets draw.
#pragma once

#include <juce_graphics/juce_graphics.h>

/// A frame of any width out of three pictures: a cap at each end, as wide as the height asks of its
/// picture (picture width x height / picture height, whole pixels), and the middle stretched over
/// what is left. Where the caps alone are too wide the left one goes first. Null pictures leave
/// their place as it is. [message thread]
void drawGlossyFrame(juce::Graphics& g, juce::Rectangle<int> bounds, const juce::Image& leftCap,
                     const juce::Image& middle, const juce::Image& rightCap);

/// Edges where a neighbour of the same row goes on: the corners there are square.
struct JoinedEdges {
    bool left = false;
    bool right = false;
    bool top = false;
    bool bottom = false;
};

/// A rectangle with round corners, filled with the base colour at its top running into the derived
/// one at its bottom. [message thread]
void drawPill(juce::Graphics& g, juce::Rectangle<float> bounds, float cornerSize, juce::Colour base,
              juce::Colour derived, JoinedEdges joined = {});
