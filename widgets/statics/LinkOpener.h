// SPDX-License-Identifier: GPL-3.0-or-later
// Where links go that somebody clicks: to the system's browser or mail program, unless a test or a
// program that has neither takes them. [message thread]
#pragma once

#include <juce_core/juce_core.h>

#include <functional>

/// An address with a scheme ("https:...", "mailto:...").
void openLink(const juce::String& link);

/// What openLink does from now on; null gives the system's programs back.
void setLinkOpener(std::function<void(const juce::String& link)> opener);
