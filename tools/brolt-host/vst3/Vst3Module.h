// SPDX-License-Identifier: GPL-3.0-or-later
//
// A loaded VST3 bundle. It stays loaded for as long as this object lives, which everything made of
// it must not outlive.

#pragma once

#include "tools/brolt-host/vst3/Vst3EffectClass.h"
#include "tools/brolt-host/vst3/Vst3HostContext.h"

#include <filesystem>
#include <string>

class Vst3Module {
public:
    /// Loads the bundle and tells it of the host. Throws HostError when the bundle is missing, is
    /// none, cannot be loaded or has no class that processes audio. [message thread]
    explicit Vst3Module(const std::filesystem::path& bundlePath);

    /// QMBrolt.vst3 beside this program. [any thread]
    static std::filesystem::path standardBundle();

    [[nodiscard]] const std::filesystem::path& bundle() const { return path; }

    [[nodiscard]] const VST3::Hosting::PluginFactory& factory() const {
        return module->getFactory();
    }

    /// The first class that processes audio. [message thread]
    [[nodiscard]] Vst3EffectClass effectClass();

    /// The name of that class in UTF-8, which users know the plug-in by. [any thread]
    [[nodiscard]] const std::string& effectName() const { return effect.name(); }

    [[nodiscard]] HostMessages& messages() { return context.messages(); }

private:
    [[nodiscard]] VST3::Hosting::Module::Ptr load() const;
    [[nodiscard]] VST3::Hosting::ClassInfo findEffect() const;

    std::filesystem::path path;
    Vst3HostContext context;
    VST3::Hosting::Module::Ptr module; ///< goes before the context that it was told of
    VST3::Hosting::ClassInfo effect;
};
