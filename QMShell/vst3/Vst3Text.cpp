// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/Vst3Text.h"

#include <public.sdk/source/vst/utility/stringconvert.h>

#include <algorithm>
#include <stdexcept>

namespace {

constexpr std::size_t capacity = 128;

} // namespace

void copyToString128(std::string_view utf8, Steinberg::Vst::String128 destination) {
    std::u16string wide;
    try {
        wide = VST3::StringConvert::convert(std::string(utf8));
    } catch (const std::range_error&) {
        wide.clear();
    }
    const std::size_t length = std::min(wide.size(), capacity - 1);
    std::copy_n(wide.begin(), length, destination);
    destination[length] = 0;
}

std::string utf8OfString128(const Steinberg::Vst::TChar* text) {
    if (text == nullptr)
        return {};
    const Steinberg::Vst::TChar* const end = std::find(text, text + capacity, 0);
    try {
        return VST3::StringConvert::convert(std::u16string(text, end));
    } catch (const std::range_error&) {
        return {};
    }
}
