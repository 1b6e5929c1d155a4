// SPDX-License-Identifier: GPL-3.0-or-later
// A line of text at the edge of an editor that says when there is a newer version of the product,
// and opens its installer's address in the browser. It asks the maker's service when it is made
// (see UpdateChecks); until it knows of an update, and for ever where there is none, it shows
// nothing and is not in anybody's way. [message thread]
#pragma once

#include "widgets/base/QMWidget.h"
#include "widgets/update/IUpdateCheckClient.h"

class QMUpdateCheckWidget final : public QMWidget, private IUpdateCheckClient {
public:
    /// The product asked for; empty for none.
    explicit QMUpdateCheckWidget(const juce::String& productName = {});
    /// The question is stopped where no other widget has asked it: waits up to 30 ms for that.
    ~QMUpdateCheckWidget() override;

    /// What is shown; empty while nothing is known.
    [[nodiscard]] const juce::String& getNotice() const { return notice; }

    /// What a click opens; empty when there is nothing to open. What is no address of the web is
    /// never opened.
    [[nodiscard]] const juce::String& getLink() const { return link; }

    /// The name is the product's business; screen readers are told the notice.
    void setName(const juce::String& name) override;
    void setMagnification(float factor) override;
    bool activate() override;
    void paint(juce::Graphics& g) override;
    bool hitTest(int x, int y) override;
    void mouseEnter(const juce::MouseEvent& event) override;
    void mouseExit(const juce::MouseEvent& event) override;
    void mouseUp(const juce::MouseEvent& event) override;

protected:
    [[nodiscard]] juce::AccessibilityRole accessibleRole() const override;

private:
    void updateReplyArrived(const QM::UpdateReply& reply) override;
    void noticeChanged();
    [[nodiscard]] juce::Font font() const;
    /// Where the text is, pixels.
    [[nodiscard]] juce::Rectangle<int> noticeArea() const;

    juce::String notice;
    juce::String link;
    bool isMouseOnNotice = false;
};
