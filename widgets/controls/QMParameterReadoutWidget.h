// SPDX-License-Identifier: GPL-3.0-or-later
// The value of one parameter as text in a glossy frame. A click opens a text editor over it: Return
// writes what was typed as one gesture, Escape and a click elsewhere leave the value alone.
//
// A readout that belongs to a control shows what the control shows and leaves the keyboard to it.
//
// Everything here is used on the message thread alone. [message thread]
#pragma once

#include "widgets/base/IQMTextColour.h"
#include "widgets/base/QMWidget.h"
#include "widgets/controls/CachedDrawing.h"
#include "widgets/controls/QMParameterTextTransformer.h"

#include <limits>
#include <memory>
#include <optional>

class QMParameterReadoutWidget : public QMWidget,
                                 public IQMTextColour,
                                 private juce::TextEditor::Listener {
public:
    QMParameterReadoutWidget();
    ~QMParameterReadoutWidget() override;

    /// The control that it shows the value of; not owned. Null for none.
    void setOwner(QMWidget* control);

    [[nodiscard]] QMWidget* getOwner() const { return owner.getComponent(); }

    // Value.

    void setParameterValue(std::uint32_t slot, double plain, bool notify) override;
    [[nodiscard]] double getSlotValue(std::uint32_t slot) const override;
    [[nodiscard]] juce::String getDisplayText() const override;
    void flushDeferredUpdates() override;
    /// What is written is limited to these; without them it is not.
    void setSlotMinimum(std::uint32_t slot, double plain, bool notify) override;
    void setSlotMaximum(std::uint32_t slot, double plain, bool notify) override;
    void setDisplayScale(std::uint32_t slot, double scale, bool notify) override;
    void setDisplayOffset(std::uint32_t slot, double offset, bool notify) override;
    void setDisplayResolution(std::uint32_t slot, double resolution, bool notify) override;
    void setKeyStep(std::uint32_t slot, double step, bool notify) override;
    /// Null for the plain one.
    void setTextTransformer(std::unique_ptr<QMParameterTextTransformer> transformer);

    // Looks.

    void setTextColour(std::optional<juce::Colour> colour) override;

    [[nodiscard]] std::optional<juce::Colour> getTextColour() const { return textColour; }

    void setBackgroundColour(juce::Colour colour);
    /// Whether the frame is made of its pictures, where they are there.
    void setGlossy(bool flag);
    /// What part of its bounds the readout is, in design units; empty for the whole. Elsewhere it
    /// draws nothing and lets clicks through to what it lies on.
    void setFrameArea(juce::Rectangle<int> partOfBounds);
    /// The same in pixels, never more than the bounds.
    [[nodiscard]] juce::Rectangle<int> getFrameArea() const;
    bool hitTest(int x, int y) override;
    void setMagnification(float factor) override;
    void paint(juce::Graphics& g) override;
    void resized() override;
    void enablementChanged() override;
    void visibilityChanged() override;

    // Entry of a value.

    [[nodiscard]] bool isEditable() const override { return isEnabled(); }

    [[nodiscard]] bool isEditing() const { return editor != nullptr; }

    /// Opens the editor with the text shown.
    bool activate() override;
    /// Opens the editor with its first character.
    bool beginTextEntry(juce::juce_wchar character) override;
    void stepUp(bool fine) override;
    void stepDown(bool fine) override;
    bool keyPressed(const juce::KeyPress& key) override;
    void mouseDown(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override {
        return juce::AccessibilityRole::slider;
    }

private:
    static constexpr juce::juce_wchar infinitySign = 0x221e;

    void textEditorReturnKeyPressed(juce::TextEditor&) override;
    void textEditorEscapeKeyPressed(juce::TextEditor&) override;
    void textEditorFocusLost(juce::TextEditor&) override;

    bool openEditor(const juce::String& text, bool selectText);
    void closeEditor(bool restoreFocus);
    void writeTyped(const juce::String& typed);
    void step(double amount);
    [[nodiscard]] double limited(double plain) const;
    void drawFrame(juce::Graphics& g);
    void drawDrawnFrame(juce::Graphics& g, juce::Rectangle<float> area) const;
    [[nodiscard]] juce::Font font() const;
    [[nodiscard]] juce::Colour shownTextColour() const;

    double value = 1000000.0; ///< no plug-in's first value, so that this one is shown
    double displayScale = 1.0;
    double displayOffset = 0.0;
    double displayResolution = 0.01;
    double keyStep = 1.0;
    double rangeMinimum = -std::numeric_limits<double>::infinity();
    double rangeMaximum = std::numeric_limits<double>::infinity();
    std::optional<juce::Colour> textColour = juce::Colour(0, 255, 0);
    juce::Colour backgroundColour{22, 24, 26};
    bool glossy = true;
    juce::Rectangle<int> frameInBounds; ///< design units
    std::unique_ptr<QMParameterTextTransformer> textTransformer;
    juce::Component::SafePointer<QMWidget> owner;
    std::unique_ptr<juce::TextEditor> editor;
    juce::Component::SafePointer<juce::Component> focusBefore;
    bool pressOpens = false; ///< the press that is on ends with the editor if it is a click
    juce::String shownText;  ///< what has been painted, or is about to be
    CachedDrawing frame;
};
