// SPDX-License-Identifier: GPL-3.0-or-later
// The meters of the generic editor: levels in pairs with a scale between them, their names below,
// and the pitches as numbers. [message thread]
#pragma once

#include "widgets/ui/IGenericEditorContent.h"

#include <memory>
#include <vector>

class GenericPitchDisplay;
class QMMeterCalibrationWidget;
class QMMeterWidget;

class GenericMeterPanel final : public juce::Component {
public:
    /// Records of a kind that there is no display for are left out.
    explicit GenericMeterPanel(const std::vector<GenericMeter>& meters);
    ~GenericMeterPanel() override;

    /// Design units; 0 without anything to show.
    [[nodiscard]] int preferredWidth() const;
    [[nodiscard]] int leastHeight() const;

    /// The area in design units.
    void place(juce::Rectangle<int> design, float magnification);

    [[nodiscard]] std::vector<QMWidget*> displayWidgets() const;

    void paint(juce::Graphics& g) override;

private:
    struct Level {
        juce::String name;
        std::unique_ptr<QMMeterWidget> meter;
        juce::Rectangle<int> nameArea;
    };

    void addLevel(const GenericMeter& meter);
    void addPitches(const GenericMeter& meter);
    [[nodiscard]] int pairCount() const;
    [[nodiscard]] int pairsInARow() const;
    [[nodiscard]] int rowCount() const;
    void placePair(std::size_t pair, juce::Rectangle<int> design);
    void placeLevel(std::size_t level, juce::Rectangle<int> bar, juce::Rectangle<int> nameRoom);
    [[nodiscard]] juce::Rectangle<int> toPixels(juce::Rectangle<int> design) const;

    std::vector<Level> levels;
    std::vector<std::unique_ptr<QMMeterCalibrationWidget>> scales; ///< one a pair
    std::vector<std::unique_ptr<GenericPitchDisplay>> pitches;
    float factor = 1.0f;
};
