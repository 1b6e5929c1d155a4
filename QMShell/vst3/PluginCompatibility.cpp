// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/PluginCompatibility.h"

#include <utility>

PluginCompatibility::PluginCompatibility(std::string compatibilityText)
    : text(std::move(compatibilityText)) {}

Steinberg::tresult PLUGIN_API
PluginCompatibility::getCompatibilityJSON(Steinberg::IBStream* stream) {
    if (stream == nullptr)
        return Steinberg::kInvalidArgument;
    const auto size = static_cast<Steinberg::int32>(text.size());
    Steinberg::int32 written = 0;
    const Steinberg::tresult result = stream->write(text.data(), size, &written);
    if (result != Steinberg::kResultOk)
        return result;
    return written == size ? Steinberg::kResultOk : Steinberg::kResultFalse;
}
