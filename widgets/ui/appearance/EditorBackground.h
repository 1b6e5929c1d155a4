// SPDX-License-Identifier: GPL-3.0-or-later
// What is behind an editor's widgets, by its mode: a picture of brushed metal, or a flat colour or
// a gradient made of the user's base colour. [message thread]
#pragma once

#include "widgets/ui/appearance/AppearanceLimits.h"
#include "widgets/ui/appearance/BackgroundGradient.h"

#include <cstdint>
#include <functional>

class EditorBackground {
public:
    enum Mode : std::int32_t {
        unset = -1,
        lightBrushed = 0,
        darkBrushed = 1,
        flatColour = 2,
        gradientColour = 3,
        gradientWithHighlights = 4,
    };

    /// A picture by its file's name; null where there is none.
    using ImageLoader = std::function<juce::Image(const juce::String& fileName)>;

    [[nodiscard]] static constexpr bool isMode(std::int32_t number) {
        return number >= lightBrushed && number <= gradientWithHighlights;
    }

    [[nodiscard]] std::int32_t getMode() const { return mode; }

    /// Loads the mode's picture and lets go of everything else. Nothing for the mode that it has,
    /// or for a number that is none; answers whether it was taken.
    bool setMode(std::int32_t newMode, const ImageLoader& load);

    // For the modes without a picture. Each answers whether the editor has to be painted anew.

    /// Without its transparency: there is nothing behind an editor.
    bool setBaseColour(juce::Colour colour);
    /// See BackgroundGradient::atBrightness.
    bool setTopBrightness(float brightness);
    bool setBottomBrightness(float brightness);

    // What the mode shows.

    /// Null where there is no picture, or its file is missing.
    [[nodiscard]] juce::Image getImage() const { return image; }

    /// The file of the mode's picture; empty where there is none.
    [[nodiscard]] juce::String getImageName() const;
    /// Short name of the kind of metal ("uib", "uibd"); empty for the others.
    [[nodiscard]] juce::String getTag() const;

    /// What stands for the background where one colour has to: text on it and the logo are chosen
    /// by it. The shade of the metal, the flat colour, or the middle of the gradient, which is
    /// nearer to most of what text stands on than the colours of either end.
    [[nodiscard]] juce::Colour getPanelColour() const;

    /// Whether draw draws it.
    [[nodiscard]] bool isDrawn() const { return mode >= flatColour; }

    /// A flat colour or a gradient, drawn anew when size or looks have changed.
    void draw(juce::Graphics& g, juce::Rectangle<int> area);

private:
    [[nodiscard]] BackgroundGradient gradient() const;
    void drawGradient(juce::Graphics& g, juce::Rectangle<int> area);

    std::int32_t mode = unset;
    juce::Image image;
    juce::Colour baseColour{AppearanceLimits::defaultBaseColour};
    float topBrightness = AppearanceLimits::defaultTopBrightness;
    float bottomBrightness = AppearanceLimits::defaultBottomBrightness;
    juce::Image drawn; ///< the gradient in the screen's own pixels
    BackgroundGradient drawnGradient;
};
