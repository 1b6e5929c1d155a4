// SPDX-License-Identifier: GPL-3.0-or-later
// A toggle in the form of a key: up, or down and lit. [message thread]
#pragma once

#include "widgets/buttons/ButtonPicture.h"
#include "widgets/buttons/QMTrackedMultistateButtonWidget.h"

class QMGraphicToggleButton final : public QMTrackedMultistateButtonWidget {
public:
    /// What the key is lit in when it is on; plain only shows it pressed.
    enum class Variant { plain, red, blue, green, yellow };

    explicit QMGraphicToggleButton(Variant variant = Variant::plain);

    void setVariant(Variant newVariant);

    [[nodiscard]] Variant getVariant() const { return variant; }

    void paint(juce::Graphics& g) override;

private:
    void drawFace(juce::Graphics& g);

    Variant variant;
    ButtonPicture up;
    ButtonPicture pressed;
    ButtonPicture lit;
};
