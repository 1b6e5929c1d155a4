// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/LoadedLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#ifdef _WIN32
#    include <windows.h>
#else
#    include <dlfcn.h>
#endif

namespace {

std::unique_ptr<LoadedLibrary>& sharedOne() {
    static std::unique_ptr<LoadedLibrary> library;
    return library;
}

/// Unloads while everything that the library may still need is there, which a static object's
/// destructor could not promise.
class UnloadAtTheEnd : public ::testing::Environment {
public:
    void TearDown() override { LoadedLibrary::unloadShared(); }
};

[[maybe_unused]] const auto* const environment =
    ::testing::AddGlobalTestEnvironment(new UnloadAtTheEnd);

#ifndef _WIN32
std::string libraryFile() {
    return LoadedLibrary::bundlePath() + "/Contents/x86_64-linux/QMBrolt.so";
}
#endif

} // namespace

LoadedLibrary::LoadedLibrary() {
    std::string reason;
    module = VST3::Hosting::Module::create(bundlePath(), reason);
    if (!module)
        throw std::runtime_error(bundlePath() + ": " + reason);
    classes = factory().classInfos();
}

VST3::Hosting::ClassInfo LoadedLibrary::classOf(const std::string& category) const {
    for (const VST3::Hosting::ClassInfo& each : classes) {
        if (each.category() == category)
            return each;
    }
    throw std::runtime_error("the factory has no class of the category " + category);
}

std::string LoadedLibrary::bundlePath() {
    return BROLT_VST3_BUNDLE;
}

#ifdef _WIN32

void* LoadedLibrary::exported(const char* name) {
    const HMODULE library = GetModuleHandleW(L"QMBrolt.vst3");
    return library != nullptr ? reinterpret_cast<void*>(GetProcAddress(library, name)) : nullptr;
}

bool LoadedLibrary::isInProcess() {
    return GetModuleHandleW(L"QMBrolt.vst3") != nullptr;
}

#else

void* LoadedLibrary::exported(const char* name) {
    void* const library = dlopen(libraryFile().c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr)
        return nullptr;
    void* const function = dlsym(library, name);
    dlclose(library); // the reference of this call alone
    return function;
}

bool LoadedLibrary::isInProcess() {
    // The loader's own answer could be right while a mapping stays behind.
    const std::string file = std::filesystem::canonical(libraryFile()).string();
    std::ifstream mappings("/proc/self/maps");
    for (std::string line; std::getline(mappings, line);) {
        if (line.ends_with(file))
            return true;
    }
    return false;
}

#endif

LoadedLibrary& LoadedLibrary::shared() {
    if (!sharedOne())
        sharedOne() = std::make_unique<LoadedLibrary>();
    return *sharedOne();
}

void LoadedLibrary::unloadShared() {
    sharedOne().reset();
}
