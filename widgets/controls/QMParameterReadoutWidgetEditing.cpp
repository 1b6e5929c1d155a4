// SPDX-License-Identifier: GPL-3.0-or-later
// Typing a value into a readout.
#include "widgets/controls/DisplayNumber.h"
#include "widgets/controls/QMParameterReadoutWidget.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int mostCharacters = 24;
constexpr int clickSlack = 5; ///< pixels that the mouse may move in a click
constexpr double fineStep = 0.1;

} // namespace

// Keys and mouse.

void QMParameterReadoutWidget::mouseDown(const juce::MouseEvent& event) {
    pressOpens = !pressIsTaken(event) && event.mods.isLeftButtonDown();
}

void QMParameterReadoutWidget::mouseUp(const juce::MouseEvent& event) {
    if (pressOpens && event.getDistanceFromDragStart() < clickSlack)
        activate();
    pressOpens = false;
}

bool QMParameterReadoutWidget::activate() {
    return openEditor(getDisplayText(), true);
}

bool QMParameterReadoutWidget::beginTextEntry(juce::juce_wchar character) {
    return openEditor(juce::String::charToString(character), false);
}

bool QMParameterReadoutWidget::keyPressed(const juce::KeyPress& key) {
    // What the editor has no use for moves no value behind it.
    if (editor != nullptr && !key.isKeyCode(juce::KeyPress::tabKey))
        return false;
    return QMWidget::keyPressed(key);
}

void QMParameterReadoutWidget::step(double amount) {
    const double wanted = value + amount;
    if (std::isfinite(wanted))
        writeDisplayValue(0, limited(wanted), true);
}

void QMParameterReadoutWidget::stepUp(bool fine) {
    step(keyStep * (fine ? fineStep : 1.0));
}

void QMParameterReadoutWidget::stepDown(bool fine) {
    step(-keyStep * (fine ? fineStep : 1.0));
}

// The editor.

bool QMParameterReadoutWidget::openEditor(const juce::String& text, bool selectText) {
    if (editor != nullptr || !isEditable() || !isShowing())
        return false;
    focusBefore = getCurrentlyFocusedComponent();
    editor = std::make_unique<juce::TextEditor>();
    editor->setColour(juce::TextEditor::backgroundColourId, juce::Colours::transparentBlack);
    editor->setColour(juce::TextEditor::outlineColourId, juce::Colours::transparentBlack);
    editor->setColour(juce::TextEditor::focusedOutlineColourId, juce::Colours::transparentBlack);
    editor->setColour(juce::TextEditor::shadowColourId, juce::Colours::transparentBlack);
    editor->setColour(juce::TextEditor::textColourId, shownTextColour());
    editor->setColour(juce::TextEditor::highlightColourId, shownTextColour().withAlpha(0.3f));
    editor->setColour(juce::TextEditor::highlightedTextColourId, shownTextColour());
    editor->setColour(juce::CaretComponent::caretColourId, shownTextColour());
    editor->setFont(font());
    editor->setBorder(juce::BorderSize<int>(0));
    editor->setIndents(0, 0);
    editor->setJustification(juce::Justification::centred);
    editor->setInputRestrictions(mostCharacters);
    editor->setPopupMenuEnabled(false);
    editor->setTitle(getName());
    editor->setText(text, false);
    editor->setBounds(getFrameArea());
    editor->addListener(this);
    addAndMakeVisible(*editor);
    editor->grabKeyboardFocus();
    if (selectText)
        editor->selectAll();
    else
        editor->moveCaretToEnd();
    repaint();
    return true;
}

void QMParameterReadoutWidget::closeEditor(bool restoreFocus) {
    if (editor == nullptr)
        return;
    const std::unique_ptr<juce::TextEditor> closed = std::move(editor);
    closed->removeListener(this);
    // The keyboard goes back where it was, else to the host; never to whichever widget is next.
    if (closed->hasKeyboardFocus(true)) {
        if (restoreFocus && focusBefore != nullptr && focusBefore->isShowing())
            focusBefore->grabKeyboardFocus();
        else
            closed->giveAwayKeyboardFocus();
    }
    focusBefore = nullptr;
    repaint();
}

void QMParameterReadoutWidget::textEditorReturnKeyPressed(juce::TextEditor&) {
    const juce::String typed = editor->getText();
    const juce::Component::SafePointer<QMParameterReadoutWidget> self(this);
    closeEditor(true);
    if (self != nullptr)
        writeTyped(typed);
}

void QMParameterReadoutWidget::textEditorEscapeKeyPressed(juce::TextEditor&) {
    closeEditor(true);
}

void QMParameterReadoutWidget::textEditorFocusLost(juce::TextEditor& left) {
    // Told of later; it may have the keyboard again.
    if (!left.hasKeyboardFocus(true))
        closeEditor(false);
}

double QMParameterReadoutWidget::limited(double plain) const {
    return rangeMinimum <= rangeMaximum ? std::clamp(plain, rangeMinimum, rangeMaximum) : plain;
}

void QMParameterReadoutWidget::writeTyped(const juce::String& typed) {
    const juce::String text = typed.replace(juce::String::charToString(infinitySign), "inf");
    if (!leadingNumber(text.replaceCharacter(',', '.')).has_value())
        return;
    // What is typed is what would be shown.
    const double plain = limited(textTransformer->parseText(text) / displayScale + displayOffset);
    if (!std::isfinite(plain))
        return;
    const SafePointer<QMParameterReadoutWidget> self(this);
    writeAsGesture(0, plain);
    if (QMWidget* const control = self == nullptr ? nullptr : getOwner())
        control->setParameterValue(0, plain, false);
}
