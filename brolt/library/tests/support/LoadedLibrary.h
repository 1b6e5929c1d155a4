// SPDX-License-Identifier: GPL-3.0-or-later
// The built bundle, loaded as a host loads it. Most tests share one loading; tests of loading and
// unloading let go of it first.
#pragma once

#include "brolt/library/tests/support/Vst3.h"

#include <public.sdk/source/vst/hosting/module.h>

#include <string>

class LoadedLibrary {
public:
    /// Throws std::runtime_error, with the loader's words, when it cannot be loaded.
    LoadedLibrary();
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;

    [[nodiscard]] const VST3::Hosting::PluginFactory& factory() const {
        return module->getFactory();
    }

    [[nodiscard]] Steinberg::IPluginFactory& rawFactory() const { return *factory().get(); }

    /// A new object of the first class of a category; null when there is none.
    template <typename Interface>
    [[nodiscard]] Steinberg::IPtr<Interface> create(const std::string& category) const {
        return factory().createInstance<Interface>(classOf(category).ID());
    }

    /// What the factory says about the first class of a category. Throws std::runtime_error when
    /// there is none.
    [[nodiscard]] VST3::Hosting::ClassInfo classOf(const std::string& category) const;

    /// An exported function; null when the library has no such.
    [[nodiscard]] static void* exported(const char* name);

    /// UTF-8 path of the bundle.
    [[nodiscard]] static std::string bundlePath();

    /// Whether the library's file is in this process.
    [[nodiscard]] static bool isInProcess();

    /// The one that tests share, loaded when first asked for.
    static LoadedLibrary& shared();

    /// Nothing of the shared one may be in use.
    static void unloadShared();

private:
    VST3::Hosting::Module::Ptr module;
    /// Read once: the SDK's way of asking for them is for one thread at a time.
    VST3::Hosting::PluginFactory::ClassInfos classes;
};
