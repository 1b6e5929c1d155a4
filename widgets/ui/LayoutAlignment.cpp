// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/ui/LayoutAlignment.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

using Area = juce::Rectangle<int>;
using Measure = int (*)(const Area&);

int top(const Area& area) {
    return area.getY();
}

int bottom(const Area& area) {
    return area.getBottom();
}

int left(const Area& area) {
    return area.getX();
}

int right(const Area& area) {
    return area.getRight();
}

int centreAcross(const Area& area) {
    return area.getX() + area.getWidth() / 2;
}

int centreDown(const Area& area) {
    return area.getY() + area.getHeight() / 2;
}

int smallest(const std::vector<Area>& areas, Measure measure) {
    return std::transform_reduce(
        areas.begin() + 1, areas.end(), measure(areas.front()),
        [](int a, int b) { return std::min(a, b); }, measure);
}

int largest(const std::vector<Area>& areas, Measure measure) {
    return std::transform_reduce(
        areas.begin() + 1, areas.end(), measure(areas.front()),
        [](int a, int b) { return std::max(a, b); }, measure);
}

int average(const std::vector<Area>& areas, Measure measure) {
    const int sum = std::transform_reduce(areas.begin(), areas.end(), 0, std::plus<>(), measure);
    return sum / static_cast<int>(areas.size());
}

void moveAcross(std::vector<Area>& areas, Measure measure, int goal) {
    for (Area& area : areas)
        area.translate(goal - measure(area), 0);
}

void moveDown(std::vector<Area>& areas, Measure measure, int goal) {
    for (Area& area : areas)
        area.translate(0, goal - measure(area));
}

} // namespace

void align(std::vector<Area>& areas, LayoutAlignment alignment) {
    if (areas.empty())
        return;
    switch (alignment) {
    case LayoutAlignment::tops:
        return moveDown(areas, top, smallest(areas, top));
    case LayoutAlignment::bottoms:
        return moveDown(areas, bottom, largest(areas, bottom));
    case LayoutAlignment::lefts:
        return moveAcross(areas, left, smallest(areas, left));
    case LayoutAlignment::rights:
        return moveAcross(areas, right, largest(areas, right));
    case LayoutAlignment::horizontalCentres:
        return moveAcross(areas, centreAcross, average(areas, centreAcross));
    case LayoutAlignment::verticalCentres:
        return moveDown(areas, centreDown, average(areas, centreDown));
    }
}

std::optional<LayoutAlignment> alignmentOfKey(const juce::KeyPress& key) {
    using juce::KeyPress;
    if (!key.getModifiers().isAltDown())
        return {};
    if (key.isKeyCode(KeyPress::upKey))
        return LayoutAlignment::tops;
    if (key.isKeyCode(KeyPress::downKey))
        return LayoutAlignment::bottoms;
    if (key.isKeyCode(KeyPress::leftKey))
        return LayoutAlignment::lefts;
    if (key.isKeyCode(KeyPress::rightKey))
        return LayoutAlignment::rights;
    // With Alt held some systems tell no character, others no key of that name.
    const auto means = [&key](juce::juce_wchar character) {
        return key.getTextCharacter() == character ||
               key.getKeyCode() == static_cast<int>(character);
    };
    if (means('|'))
        return LayoutAlignment::horizontalCentres;
    if (means('-'))
        return LayoutAlignment::verticalCentres;
    return {};
}
