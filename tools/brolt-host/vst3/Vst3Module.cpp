// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3Module.h"

#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/ProgramPath.h"
#include "tools/brolt-host/Utf8.h"

#include <pluginterfaces/vst/ivstaudioprocessor.h>

#include <algorithm>
#include <system_error>

#ifdef _WIN32
#    include <windows.h>
#endif

namespace fs = std::filesystem;

namespace {

/// Absolute, so that no search path of the system plays a part, and without a separator at its end:
/// the library in a bundle has the bundle's name.
fs::path wholePath(const fs::path& path) {
    std::error_code error;
    fs::path whole = fs::absolute(path, error).lexically_normal();
    if (error)
        return path;
    return whole.has_filename() ? whole : whole.parent_path();
}

/// Where the library for this machine lies in a bundle.
fs::path libraryIn(const fs::path& bundle) {
#ifdef _WIN32
    return bundle / "Contents" / "x86_64-win" / bundle.filename();
#else
    return bundle / "Contents" / "x86_64-linux" / bundle.stem().concat(".so");
#endif
}

void checkBundle(const fs::path& bundle) {
    std::error_code error;
    const fs::file_status status = fs::status(bundle, error);
    if (status.type() == fs::file_type::not_found)
        throw HostError::ofFile(bundle, "no such VST3 bundle");
    if (status.type() == fs::file_type::none)
        throw HostError::ofFile(bundle, error.message());
    if (!fs::is_directory(status))
        throw HostError::ofFile(bundle, "is not a VST3 bundle, which is a folder");
    const fs::path library = libraryIn(bundle);
    if (!fs::is_regular_file(library, error)) {
        throw HostError::ofFile(bundle, "is not a VST3 bundle for this system: it has no " +
                                            utf8FromPath(library.lexically_relative(bundle)));
    }
}

/// What the SDK is to load. On Windows it takes the path of a folder for text of the code page, but
/// that of a library for UTF-8.
fs::path loadedPath(const fs::path& bundle) {
#ifdef _WIN32
    return libraryIn(bundle);
#else
    return bundle;
#endif
}

/// One line, whatever the system says.
std::string reasonOf(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    text.erase(text.find_last_not_of(' ') + 1);
    return text.empty() ? "the system refuses its library" : text;
}

} // namespace

fs::path Vst3Module::standardBundle() {
    return programPath().parent_path() / "QMBrolt.vst3";
}

Vst3Module::Vst3Module(const fs::path& bundlePath)
    : path(wholePath(bundlePath))
    , module(load())
    , effect(findEffect()) {
    factory().setHostContext(&context);
}

VST3::Hosting::Module::Ptr Vst3Module::load() const {
    checkBundle(path);
#ifdef _WIN32
    // A library that is none is an answer, not a window.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
#endif
    std::string reason;
    auto loaded = VST3::Hosting::Module::create(utf8FromPath(loadedPath(path)), reason);
    if (loaded == nullptr)
        throw HostError::ofFile(path, "cannot be loaded: " + reasonOf(reason));
    return loaded;
}

VST3::Hosting::ClassInfo Vst3Module::findEffect() const {
    for (const VST3::Hosting::ClassInfo& info : factory().classInfos()) {
        if (info.category() == kVstAudioEffectClass)
            return info;
    }
    throw HostError::ofFile(path, "has no class of the category '" kVstAudioEffectClass "'");
}

Vst3EffectClass Vst3Module::effectClass() {
    return {factory(), effect.ID(), &context};
}
