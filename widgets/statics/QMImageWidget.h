// SPDX-License-Identifier: GPL-3.0-or-later
// A picture, from the style record of its descriptor or given later; with a badge at its corner
// when there is something to see to, and a link or an action behind it where it has one. Where the
// picture is missing its name stands in its place. [message thread]
#pragma once

#include "widgets/base/QMWidget.h"

#include <functional>
#include <optional>

struct QMWidgetStyleRecord;

class QMImageWidget final : public QMWidget {
public:
    using ClickCallback = std::function<void(QMImageWidget&)>;

    /// style: an ImageStyleRecord; another one, or null, is no picture.
    explicit QMImageWidget(const QMWidgetStyleRecord* style = nullptr);

    void setImage(const juce::Image& newImage);

    [[nodiscard]] juce::Image getImage() const { return image; }

    /// How the picture fits the widget; centred until set.
    void setPlacement(juce::RectanglePlacement newPlacement);

    /// The colour that a picture is drawn in whose pixels only say how opaque it is.
    void setOwnColour(std::optional<juce::Colour> colour);

    /// A dot in the lower right corner; transparent takes it away.
    void setBadgeColour(juce::Colour colour);

    /// Opened by a click; empty for none.
    void setLink(const juce::String& target);
    /// Called by a click, after the link has been opened; null for none.
    void setClickCallback(ClickCallback callback);

    void paint(juce::Graphics& g) override;
    void mouseUp(const juce::MouseEvent& event) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;

private:
    void clickTargetChanged();
    void drawImage(juce::Graphics& g);
    void drawNameInstead(juce::Graphics& g) const;
    void drawBadge(juce::Graphics& g) const;
    [[nodiscard]] const juce::Image& reducedBy(double factorX, double factorY);

    juce::Image image;
    juce::Image reduced; ///< null until it is needed
    juce::RectanglePlacement placement = juce::RectanglePlacement::centred;
    std::optional<juce::Colour> ownColour;
    juce::Colour badgeColour; ///< transparent
    juce::String link;
    ClickCallback clickCallback;
};
