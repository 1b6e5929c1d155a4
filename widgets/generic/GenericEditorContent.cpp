// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/generic/GenericEditorContent.h"

#include "widgets/base/QMColorSource.h"
#include "widgets/base/QMWidget.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/generic/GenericDrawing.h"
#include "widgets/ui/WidgetPlacement.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int highestPreferred = 720; ///< design units; what is more is scrolled
constexpr float titleFont = 19.0f;
constexpr float headingFont = 13.0f;
constexpr float messageFont = 14.0f;
constexpr const char* headingWithoutName = "General";
constexpr const char* noParameters = "This plug-in has no parameters.";

juce::Font fontOf(TypefaceStyle style, float designHeight, float magnification) {
    return WidgetStyle::get().font(style, designHeight * magnification);
}

} // namespace

GenericEditorContent::GenericEditorContent(const GenericEditorDescription& description)
    : productName(description.productName)
    , meterPanel(description.meters) {
    addCells(groupsOf(description.parameters));
    addChildComponent(meterPanel);
    meterPanel.setVisible(meterPanel.preferredWidth() > 0);
    setTitle(productName);
}

GenericEditorContent::~GenericEditorContent() = default;

std::vector<GenericEditorContent::Group>
GenericEditorContent::groupsOf(const std::vector<GenericParameter>& parameters) {
    std::vector<Group> groups;
    for (const GenericParameter& parameter : parameters) {
        auto group = std::find_if(groups.begin(), groups.end(), [&](const Group& known) {
            return known.name == parameter.group;
        });
        if (group == groups.end())
            group = groups.insert(group, {parameter.group, {}});
        group->parameters.push_back(&parameter);
    }
    return groups;
}

void GenericEditorContent::addCells(const std::vector<Group>& groups) {
    for (const Group& group : groups) {
        groupNames.push_back(group.name.isEmpty() ? juce::String(headingWithoutName) : group.name);
        groupSizes.push_back(static_cast<int>(group.parameters.size()));
        for (const GenericParameter* const parameter : group.parameters) {
            cells.push_back(std::make_unique<GenericParameterCell>(*parameter));
            addAndMakeVisible(*cells.back());
        }
    }
    std::int32_t tabIndex = 0;
    for (QMWidget* const widget : parameterWidgets())
        widget->setTabIndex(tabIndex++);
}

std::vector<QMWidget*> GenericEditorContent::parameterWidgets() {
    std::vector<QMWidget*> widgets;
    for (const auto& cell : cells) {
        widgets.push_back(&cell->getControl());
        if (cell->getReadout() != nullptr)
            widgets.push_back(cell->getReadout());
    }
    return widgets;
}

std::vector<QMWidget*> GenericEditorContent::displayWidgets() {
    return meterPanel.displayWidgets();
}

void GenericEditorContent::setMagnification(float factor) {
    const float wanted = std::clamp(factor, smallestMagnification, largestMagnification);
    if (wanted == magnification)
        return;
    magnification = wanted;
    resized();
    repaint();
}

GenericLayoutInput GenericEditorContent::layoutInput(int designWidth) const {
    return {designWidth, groupSizes, meterPanel.preferredWidth(), meterPanel.leastHeight()};
}

juce::Rectangle<int> GenericEditorContent::preferredSize() const {
    const int width = preferredGenericWidth(layoutInput(0));
    return {0, 0, width,
            std::min(layOutGenericEditor(layoutInput(width)).height, highestPreferred)};
}

int GenericEditorContent::designWidthOf(int width) const {
    // The widest design whose right edge comes to the width or before it.
    return static_cast<int>(std::floor((static_cast<float>(width) + 0.49f) / magnification));
}

int GenericEditorContent::heightFor(int width) const {
    const GenericLayout ofWidth = layOutGenericEditor(layoutInput(designWidthOf(width)));
    return WidgetPlacement::scaled({0, 0, 0, ofWidth.height}, magnification).getHeight();
}

void GenericEditorContent::resized() {
    layout = layOutGenericEditor(layoutInput(designWidthOf(getWidth())));
    for (std::size_t i = 0; i < cells.size(); ++i)
        cells[i]->place(layout.cells[i], magnification);
    meterPanel.place(layout.panel, magnification);
}

void GenericEditorContent::paint(juce::Graphics& g) {
    drawTitle(g);
    drawHeadings(g);
    if (!cells.empty())
        return;
    const juce::Rectangle<int> room(GenericLayout::margin, layout.title.getBottom(),
                                    (layout.panel.getX() > GenericLayout::margin
                                         ? layout.panel.getX()
                                         : layout.title.getRight()) -
                                        2 * GenericLayout::margin,
                                    GenericLayout::cellHeight);
    g.setColour(GenericDrawing::coloursOf(*this).getContrastColour());
    GenericDrawing::fittedText(noParameters,
                               fontOf(TypefaceStyle::plain, messageFont, magnification),
                               WidgetPlacement::scaled(room, magnification).toFloat(), 3)
        .draw(g);
}

void GenericEditorContent::drawTitle(juce::Graphics& g) const {
    const juce::Rectangle<int> bar =
        WidgetPlacement::scaled(layout.title, magnification).withWidth(getWidth());
    const juce::Rectangle<float> area = bar.toFloat();
    g.setGradientFill(juce::ColourGradient::vertical(juce::Colours::black.withAlpha(0.28f), 0.0f,
                                                     juce::Colours::black.withAlpha(0.48f),
                                                     area.getBottom()));
    g.fillRect(bar);
    g.setColour(juce::Colours::white.withAlpha(0.10f));
    g.fillRect(bar.withTop(bar.getBottom() - 1));
    const juce::Rectangle<float> text =
        area.reduced(static_cast<float>(GenericLayout::margin + 2) * magnification, 0.0f);
    g.setColour(juce::Colours::white.withAlpha(0.92f));
    g.setFont(fontOf(TypefaceStyle::bold, titleFont, magnification));
    g.drawFittedText(productName, text.toNearestInt(), juce::Justification::centredLeft, 1, 0.6f);
}

void GenericEditorContent::drawHeadings(juce::Graphics& g) const {
    const juce::Font font = fontOf(TypefaceStyle::bold, headingFont, magnification);
    const QMColorSource& colours = GenericDrawing::coloursOf(*this);
    g.setFont(font);
    for (std::size_t i = 0; i < layout.headings.size(); ++i) {
        juce::Rectangle<int> area = WidgetPlacement::scaled(layout.headings[i], magnification);
        g.setColour(colours.getContrastColour());
        g.drawFittedText(groupNames[i], area, juce::Justification::centredLeft, 1, 0.6f);
        // A line from the text to the end of the row.
        area.removeFromLeft(
            juce::roundToInt(font.getStringWidthFloat(groupNames[i]) +
                             static_cast<float>(GenericLayout::gap) * magnification));
        g.setColour(colours.getContrastColourWeak().withMultipliedAlpha(0.5f));
        g.fillRect(area.withSizeKeepingCentre(area.getWidth(), 1));
    }
}

std::unique_ptr<IGenericEditorContent>
makeGenericEditorContent(const GenericEditorDescription& description) {
    return std::make_unique<GenericEditorContent>(description);
}
