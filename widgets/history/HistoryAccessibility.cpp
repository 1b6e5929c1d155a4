// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/history/HistoryAccessibility.h"

#include "widgets/base/QMWidget.h"

#include <utility>

namespace {

class TextOfHistory final : public juce::AccessibilityTextValueInterface {
public:
    explicit TextOfHistory(const QMWidget& shown)
        : history(shown) {}

    bool isReadOnly() const override { return true; }

    juce::String getCurrentValueAsString() const override { return history.getDisplayText(); }

    void setValueAsString(const juce::String&) override {}

private:
    const QMWidget& history;
};

} // namespace

std::unique_ptr<juce::AccessibilityHandler>
makeHistoryAccessibility(QMWidget& history, juce::AccessibilityActions actions) {
    return std::make_unique<juce::AccessibilityHandler>(
        history, juce::AccessibilityRole::label, std::move(actions),
        juce::AccessibilityHandler::Interfaces{std::make_unique<TextOfHistory>(history)});
}
