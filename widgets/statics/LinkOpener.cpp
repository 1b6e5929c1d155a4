// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/LinkOpener.h"

#include <utility>

namespace {

std::function<void(const juce::String&)>& currentOpener() {
    static std::function<void(const juce::String&)> opener;
    return opener;
}

} // namespace

void openLink(const juce::String& link) {
    if (currentOpener())
        currentOpener()(link);
    else
        juce::URL(link).launchInDefaultBrowser();
}

void setLinkOpener(std::function<void(const juce::String& link)> opener) {
    currentOpener() = std::move(opener);
}
