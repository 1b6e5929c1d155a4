// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/preferences/tests/PreferencesFixtures.h"

#include "services/preferences/PreferencesBaseFolder.h"
#include "services/preferences/PreferencesStores.h"

#include <cstdlib>
#include <fstream>
#include <optional>

#ifdef _WIN32
#    include <windows.h>
#endif

namespace preferencesTest {
namespace {

/// Keeps the process's stores out of the user's folders before any test runs.
class ProcessFolder : public ::testing::Environment {
public:
    void SetUp() override {
        if (const char* const inherited = std::getenv(processFolderVariable))
            path = inherited;
        else
            path = directory.emplace().path();
        QM::setPreferencesBaseFolder(toJuceFile(path));
    }

    std::filesystem::path path;

private:
    std::optional<TemporaryDirectory> directory;
};

ProcessFolder& environment() {
    // GoogleTest owns it until after the process's stores are gone.
    static auto* const registered = new ProcessFolder;
    return *registered;
}

[[maybe_unused]] const auto* const registration =
    ::testing::AddGlobalTestEnvironment(&environment());

} // namespace

std::filesystem::path storeFile(const std::filesystem::path& base, QM::PreferencesStoreId store) {
    switch (store) {
    case QM::PreferencesStoreId::shell:
        return base / "QM Plugin Preferences" / "QMShell.settings";
    case QM::PreferencesStoreId::plugIns:
        return base / "QM Plugin Preferences" / "QMPlugins.settings";
    case QM::PreferencesStoreId::console:
        break;
    }
    return base / "NoxConsole3d" / "NoxConsole3d.prefs";
}

juce::File toJuceFile(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return juce::File(juce::String::fromUTF8(reinterpret_cast<const char*>(text.data()),
                                             static_cast<int>(text.size())));
}

const std::filesystem::path& processFolder() {
    return environment().path;
}

bool ToolkitTest::canRunLoop() {
#ifdef _WIN32
    // Messages between threads go through a window.
    const HWND window =
        CreateWindowW(L"STATIC", L"", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    return window != nullptr && DestroyWindow(window) != 0;
#else
    return true;
#endif
}

// A name with a character beyond ASCII, as users have them.
OwnStoreTest::OwnStoreTest()
    : base_(directory.path() / std::filesystem::path(u8"Präferenzen"))
    , folderBefore(QM::preferencesBaseFolder()) {
    QM::setPreferencesBaseFolder(toJuceFile(base_));
}

OwnStoreTest::~OwnStoreTest() {
    QM::setPreferencesBaseFolder(folderBefore);
}

void OwnStoreTest::writeShellFile(const std::string& bytes) const {
    std::filesystem::create_directories(shellFile().parent_path());
    std::ofstream(shellFile(), std::ios::binary) << bytes;
}

ProcessStoresTest::ProcessStoresTest() {
    for (const auto store : QM::allPreferencesStores) {
        juce::PropertiesFile& properties = QM::preferencesStore(store);
        properties.clear();
        properties.saveIfNeeded();
    }
}

// Nothing is left to be written when the folder has gone.
ProcessStoresTest::~ProcessStoresTest() {
    for (const auto store : QM::allPreferencesStores)
        QM::preferencesStore(store).saveIfNeeded();
}

} // namespace preferencesTest
