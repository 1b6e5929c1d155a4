// SPDX-License-Identifier: GPL-3.0-or-later
// Texts between the plug-in model (UTF-8) and the interface (UTF-16 in 128 units).
#pragma once

#include <pluginterfaces/vst/vsttypes.h>

#include <string>
#include <string_view>

/// Copies what fits, terminated. Bytes that are no UTF-8 leave the text empty. [any thread]
void copyToString128(std::string_view utf8, Steinberg::Vst::String128 destination);

/// At most 128 units, up to the first zero; null gives the empty text. [any thread]
[[nodiscard]] std::string utf8OfString128(const Steinberg::Vst::TChar* text);
