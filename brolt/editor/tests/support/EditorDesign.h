// SPDX-License-Identifier: GPL-3.0-or-later
// The product's editor as it was designed, written out a second time and by hand.
#pragma once

#include <juce_graphics/juce_graphics.h>

#include <string>
#include <typeindex>
#include <vector>

namespace EditorDesign {

/// Design units.
struct Area {
    std::string id;
    juce::Rectangle<int> place;
};

struct Widget {
    std::string id;
    std::type_index type;
    std::string label;
    bool hasReadout = false;
};

struct Help {
    std::string id;
    std::string text;
};

/// In the order of their making; places that are kept free among them. One or two channels.
[[nodiscard]] std::vector<Area> areas(int channels);

/// One for each identifier.
[[nodiscard]] const std::vector<Widget>& widgets();

/// Null for a place that is kept free.
[[nodiscard]] const Widget* widgetOf(const std::string& id);

[[nodiscard]] const std::vector<Help>& helpTexts();

/// Where the readout of a control stands.
[[nodiscard]] juce::Rectangle<int> readoutPlace(const Area& control);

/// Whether each edge by itself is on the nearest pixel.
[[nodiscard]] bool isNearest(juce::Rectangle<int> pixels, juce::Rectangle<int> place, int percent);

} // namespace EditorDesign
