// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing on what a component paints itself with, or on an image.
#pragma once

#include "widgets/drawing/QMDrawingTarget.h"

#include <vector>

class QMGraphicsDrawingTarget final : public QMDrawingTarget {
public:
    /// The context must outlive it, and gets back the state it had. [message thread]
    explicit QMGraphicsDrawingTarget(juce::Graphics& context);
    ~QMGraphicsDrawingTarget() override;
    QMGraphicsDrawingTarget(const QMGraphicsDrawingTarget&) = delete;
    QMGraphicsDrawingTarget& operator=(const QMGraphicsDrawingTarget&) = delete;

    void saveState() override;
    void restoreState() override;
    void setColour(juce::Colour colour) override;
    void setOpacity(float opacity) override;
    void setFont(const juce::Font& font) override;
    void addTransform(const juce::AffineTransform& transform) override;
    bool clipToRectangle(juce::Rectangle<int> area) override;
    bool clipToPath(const juce::Path& path) override;
    [[nodiscard]] juce::Rectangle<int> clipBounds() const override;
    void fillAll() override;
    void drawLine(juce::Line<float> line, float thickness) override;
    void drawRectangle(juce::Rectangle<float> area, float thickness) override;
    void fillRectangle(juce::Rectangle<float> area) override;
    void strokePath(const juce::Path& path, float thickness) override;
    void fillPath(const juce::Path& path) override;
    void drawText(const juce::String& text, juce::Rectangle<float> area,
                  juce::Justification justification) override;
    void drawImage(const juce::Image& image, juce::Rectangle<float> area) override;

private:
    /// The context mixes the two: it would forget the colour's own alpha.
    struct Paint {
        juce::Colour colour = juce::Colours::black;
        float opacity = 1.0F;
    };

    void applyPaint();

    juce::Graphics& graphics;
    Paint paint;
    std::vector<Paint> saved;
};
