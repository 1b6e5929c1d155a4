// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/update/QMUpdateCheckWidget.h"

#include "services/update/WebLink.h"
#include "widgets/drawing/WidgetStyle.h"
#include "widgets/statics/LinkOpener.h"
#include "widgets/update/UpdateChecks.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int longestVersion = 32; ///< characters; what is beyond is cut off

juce::String fromUtf8(const std::string& text) {
    return juce::String::fromUTF8(text.data(), static_cast<int>(text.size()));
}

/// "v1.2.3", whether the service writes the v or not. One line, whatever it sends.
juce::String shownVersion(const QM::UpdateReply& reply) {
    juce::String version;
    for (const juce::juce_wchar character : fromUtf8(reply.version))
        version += character < ' ' ? juce::juce_wchar{' '} : character;
    version = version.trim().substring(0, longestVersion);
    if (version.isEmpty() || version.startsWithIgnoreCase("v"))
        return version;
    return "v" + version;
}

juce::String noticeOf(const QM::UpdateReply& reply) {
    const juce::String version = shownVersion(reply);
    juce::String notice = "Update available";
    if (version.isNotEmpty())
        notice << ": " << version;
    if (reply.isBeta)
        notice << " (beta)";
    return notice;
}

} // namespace

QMUpdateCheckWidget::QMUpdateCheckWidget(const juce::String& productName)
    : QMWidget(0) {
    noticeChanged();
    UpdateChecks::ask(productName.toStdString(), *this);
}

QMUpdateCheckWidget::~QMUpdateCheckWidget() {
    UpdateChecks::leave(*this);
}

void QMUpdateCheckWidget::updateReplyArrived(const QM::UpdateReply& reply) {
    if (!reply.updateAvailable)
        return;
    if (QM::isWebLink(reply.installerLink))
        link = fromUtf8(reply.installerLink);
    // Of an update without a version or an address there is nothing to say or to do.
    if (!reply.version.empty() || link.isNotEmpty())
        notice = noticeOf(reply);
    noticeChanged();
}

void QMUpdateCheckWidget::noticeChanged() {
    const bool opens = link.isNotEmpty();
    setTitle(notice.isEmpty() ? getName() : notice);
    setAccessible(notice.isNotEmpty());
    setCanTakeFocus(opens);
    setInterceptsMouseClicks(opens, false);
    setMouseCursor(opens ? juce::MouseCursor::PointingHandCursor : juce::MouseCursor::NormalCursor);
    // What it is to a screen reader, and what can be done with it, is settled once for a handler.
    invalidateAccessibilityHandler();
    repaint();
}

void QMUpdateCheckWidget::setName(const juce::String& name) {
    QMWidget::setName(name);
    if (notice.isNotEmpty())
        setTitle(notice);
}

void QMUpdateCheckWidget::setMagnification(float factor) {
    QMWidget::setMagnification(factor);
    repaint();
}

bool QMUpdateCheckWidget::activate() {
    if (link.isEmpty())
        return false;
    openLink(link);
    return true;
}

juce::Font QMUpdateCheckWidget::font() const {
    const float height =
        std::min(WidgetStyle::fontHeight * getMagnification(), static_cast<float>(getHeight()));
    return WidgetStyle::get().font(TypefaceStyle::plain, std::max(1.0f, height));
}

juce::Rectangle<int> QMUpdateCheckWidget::noticeArea() const {
    const int width = static_cast<int>(std::ceil(font().getStringWidthFloat(notice)));
    return getLocalBounds().withSizeKeepingCentre(std::min(width, getWidth()), getHeight());
}

void QMUpdateCheckWidget::paint(juce::Graphics& g) {
    if (notice.isEmpty() || getLocalBounds().isEmpty())
        return;
    juce::Font drawn = font();
    drawn.setUnderline(isMouseOnNotice);
    g.setFont(drawn);
    g.setColour(isMouseOnNotice ? getContrastColourStrong() : getContrastColour());
    g.drawText(notice, getLocalBounds(), juce::Justification::centred, true);
}

bool QMUpdateCheckWidget::hitTest(int x, int y) {
    return link.isNotEmpty() && noticeArea().contains(x, y) && QMWidget::hitTest(x, y);
}

void QMUpdateCheckWidget::mouseEnter(const juce::MouseEvent&) {
    isMouseOnNotice = true;
    repaint();
}

void QMUpdateCheckWidget::mouseExit(const juce::MouseEvent&) {
    isMouseOnNotice = false;
    repaint();
}

void QMUpdateCheckWidget::mouseUp(const juce::MouseEvent& event) {
    if (event.mods.isLeftButtonDown() && noticeArea().contains(event.getPosition()))
        activate();
}

juce::AccessibilityRole QMUpdateCheckWidget::accessibleRole() const {
    return link.isEmpty() ? juce::AccessibilityRole::staticText
                          : juce::AccessibilityRole::hyperlink;
}
