// SPDX-License-Identifier: GPL-3.0-or-later
// A button in the form of a pill with its name or a sign on it, or made of two pictures. One
// segment of a row has square corners where its neighbours are. [message thread]
#pragma once

#include "widgets/buttons/ButtonPicture.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"
#include "widgets/drawing/SharedDrawing.h"

class QMPillToggleButton final : public QMTrackedMultistateButtonWidget {
public:
    enum class Look { normal, pressed, on };

    /// Draws a sign into an area, in the colour that is set.
    using ShapeDrawer = std::function<void(juce::Graphics&, juce::Rectangle<float>)>;

    QMPillToggleButton();

    /// Draws nothing while set, but works.
    void setDrawingHidden(bool flag);
    /// Overrides how the state and the mouse would have it look; normal gives that back.
    void setForcedLook(Look look);
    [[nodiscard]] Look currentLook() const;

    /// Null images have the pill drawn.
    void setPictures(const juce::Image& off, const juce::Image& on);

    void setColours(juce::Colour off, juce::Colour on);
    void setTextColour(juce::Colour colour);
    /// With less of a gradient.
    void setFlat(bool flag);
    void setCornerSize(float size);
    /// Pixels left free on every side.
    void setMargin(int pixels);
    void setJoinedEdges(JoinedEdges edges);
    /// Null has the name drawn.
    void setShapeDrawer(ShapeDrawer drawer);

    void paint(juce::Graphics& g) override;
    void paintOverChildren(juce::Graphics& g) override;

protected:
    [[nodiscard]] juce::Font textFont() const override;

private:
    void drawPillForm(juce::Graphics& g) const;
    void drawShape(juce::Graphics& g) const;
    [[nodiscard]] juce::Colour derivedColour(juce::Colour base) const;

    bool drawingHidden = false;
    Look forcedLook = Look::normal;
    ButtonPicture offPicture;
    ButtonPicture onPicture;
    juce::Colour offColour{72, 72, 72};
    juce::Colour onColour{0, 150, 60};
    juce::Colour textColour = juce::Colours::white;
    bool flat = false;
    float cornerSize = 6.0f;
    int margin = 0;
    JoinedEdges joinedEdges;
    ShapeDrawer shapeDrawer;
};
