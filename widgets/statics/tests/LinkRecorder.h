// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the links that widgets open, so that nothing opens while it lives.
#pragma once

#include "widgets/statics/LinkOpener.h"

struct LinkRecorder {
    LinkRecorder() {
        setLinkOpener([this](const juce::String& link) { opened.add(link); });
    }

    ~LinkRecorder() { setLinkOpener(nullptr); }

    LinkRecorder(const LinkRecorder&) = delete;
    LinkRecorder& operator=(const LinkRecorder&) = delete;

    juce::StringArray opened;
};
