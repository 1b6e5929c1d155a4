// SPDX-License-Identifier: GPL-3.0-or-later
// A caption: its name as text, lying or standing on its side. With a link, or when the text is an
// address of electronic mail, a click opens it; without, clicks go to what is behind.
// [message thread]
#pragma once

#include "widgets/base/IQMTextColour.h"
#include "widgets/base/QMWidget.h"

#include <optional>

class QMLabelWidget final : public QMWidget, public IQMTextColour {
public:
    QMLabelWidget();

    /// The text is the name.
    void setName(const juce::String& name) override;

    /// Turned a quarter counter-clockwise: it reads from bottom to top, centred.
    void setVertical(bool flag);

    [[nodiscard]] bool isVertical() const { return vertical; }

    /// Of a text that is not vertical; centred until set.
    void setJustification(juce::Justification newJustification);

    /// Without one the text is drawn as LabelTextColour says.
    void setTextColour(std::optional<juce::Colour> colour) override;

    /// A web address, or one of electronic mail; empty for none.
    void setLink(const juce::String& target);

    /// What a click opens, with its scheme; empty when there is nothing to open.
    [[nodiscard]] juce::String linkToOpen() const;

    void setMagnification(float factor) override;

    void paint(juce::Graphics& g) override;
    void mouseUp(const juce::MouseEvent& event) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;

private:
    void linkChanged();

    bool vertical = false;
    juce::Justification justification = juce::Justification::centred;
    std::optional<juce::Colour> ownColour;
    juce::String link;
};
