// SPDX-License-Identifier: GPL-3.0-or-later
// The class by which a host asks what the plug-in takes the place of.
#pragma once

#include <base/source/fobject.h>
#include <pluginterfaces/base/iplugincompatibility.h>

#include <string>

class PluginCompatibility final : public Steinberg::FObject,
                                  public Steinberg::IPluginCompatibility {
public:
    /// See vst3CompatibilityText.
    explicit PluginCompatibility(std::string compatibilityText);

    /// Writes the text at once; kResultFalse when the stream does not take all of it,
    /// kInvalidArgument without a stream. [message thread]
    Steinberg::tresult PLUGIN_API getCompatibilityJSON(Steinberg::IBStream* stream) override;

    OBJ_METHODS(PluginCompatibility, Steinberg::FObject)
    DEFINE_INTERFACES
    DEF_INTERFACE(Steinberg::IPluginCompatibility)
    END_DEFINE_INTERFACES(Steinberg::FObject)
    REFCOUNT_METHODS(Steinberg::FObject)

private:
    std::string text;
};
