// SPDX-License-Identifier: GPL-3.0-or-later
// A knob whose positions are the frames of an image, with a ring around it that shows the value,
// and a label. Where there is no image it is drawn. [message thread]
#pragma once

#include "widgets/base/IQMTextColour.h"
#include "widgets/controls/DrawnKnob.h"
#include "widgets/controls/KnobFrames.h"
#include "widgets/controls/KnobRing.h"
#include "widgets/controls/KnobStyleRecord.h"
#include "widgets/controls/QMParameterControlWidget.h"

class QMKnobStripWidget : public QMParameterControlWidget, public IQMTextColour {
public:
    enum LabelPosition : std::int32_t { noLabel = 0, labelBelow = 1, labelAbove = 2 };

    /// Null for the defaults of all options.
    explicit QMKnobStripWidget(const KnobStyleRecord* style = nullptr);

    /// -1 to 10 (see KnobTypes); beyond, the nearest.
    void setKnobType(std::int32_t type);

    [[nodiscard]] std::int32_t getKnobType() const { return knobType; }

    [[nodiscard]] bool isBlackKnob() const { return isBlack; }

    [[nodiscard]] const KnobFrames& getFrames() const { return frames; }

    /// A knob of the product's own. Null goes back to a drawn one.
    void setKnobImage(const juce::Image& image, std::int32_t frameCount);
    /// See KnobFrames. After the image, which brings the usual grid.
    void setFrameArrangement(std::int32_t columns, std::int32_t rows, bool gridFlag);

    void setAccentColour(juce::Colour colour);

    [[nodiscard]] juce::Colour getAccentColour() const { return accentColour; }

    void setShowRings(bool flag);

    [[nodiscard]] bool getShowRings() const { return showRings; }

    /// Design units.
    void setRingWidth(double width);

    [[nodiscard]] double getRingWidth() const { return ringWidth; }

    /// See KnobRing.
    void setRingMode(std::int32_t mode);

    [[nodiscard]] std::int32_t getRingMode() const { return ring.getMode(); }

    /// Of ring modes 5 and 7, 0 to 1.
    void setSecondValue(float newValue);

    /// Whether the arc of a disabled knob is drawn.
    void setAlwaysDrawRing(bool flag);

    /// LabelPosition. height: pixels, 0 for the usual one.
    void setLabel(std::int32_t position, float height = 0.0f);

    [[nodiscard]] std::int32_t getLabelPosition() const { return labelPosition; }

    /// Whether a knob without an image shows its value in its middle.
    void setShowValueText(bool flag);
    /// Of the caption.
    void setTextColour(std::optional<juce::Colour> colour) override;

    /// Where the knob and its label are.
    [[nodiscard]] juce::Rectangle<int> getKnobArea() const;
    [[nodiscard]] juce::Rectangle<int> getLabelArea() const;

    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    void resized() override;

protected:
    void positionChanged(float before) override;

private:
    void applyStyle(const KnobStyleRecord& style);
    void arrange();
    void drawKnob(juce::Graphics& g);
    void drawLabel(juce::Graphics& g) const;
    [[nodiscard]] float usedLabelHeight() const;
    [[nodiscard]] bool ringIsShown() const;

    std::int32_t knobType = KnobTypes::none;
    bool isBlack = false;
    KnobFrames frames;
    DrawnKnob drawn;
    KnobRing ring;
    juce::Colour accentColour{0, 255, 0};
    bool showRings = true;
    double ringWidth = 4.0;
    bool alwaysDrawRing = false;
    std::int32_t labelPosition = noLabel;
    float labelHeight = 0.0f;
    bool showValueText = false;
    std::optional<juce::Colour> captionColour;
};
