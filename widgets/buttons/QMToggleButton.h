// SPDX-License-Identifier: GPL-3.0-or-later
// A round lamp that a click switches on and off: its colour is that of its style record, its bezel
// a picture, or drawn where the picture is missing. [message thread]
#pragma once

#include "widgets/buttons/ButtonPicture.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

struct QMWidgetStyleRecord;

class QMToggleButton final : public QMTrackedMultistateButtonWidget {
public:
    enum class Form {
        nameOnLamp,
        /// To the right of the lamp, as far as there is room; else as above.
        nameBeside,
    };

    /// style: a ToggleStyleRecord; orange without one.
    explicit QMToggleButton(const QMWidgetStyleRecord* style = nullptr,
                            Form form = Form::nameOnLamp);

    /// The bezel; a null image has it drawn.
    void setPicture(const juce::Image& image);

    void paint(juce::Graphics& g) override;

    [[nodiscard]] int getIdealWidth() const override;

protected:
    [[nodiscard]] juce::Font textFont() const override;

private:
    [[nodiscard]] float side() const;
    [[nodiscard]] bool drawsNameBeside() const;
    void drawLamp(juce::Graphics& g) const;
    void drawName(juce::Graphics& g) const;

    juce::Colour litColour;
    Form form;
    ButtonPicture bezel;
};
