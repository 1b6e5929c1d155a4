// SPDX-License-Identifier: GPL-3.0-or-later
// Gives this test program a home folder of its own before anything asks for one, so that no test
// finds the user's presets or fills the user's recycle bin.
#include "presets/manager/tests/TestHome.h"

#include "services/tests/TemporaryDirectory.h"

#include <cstdlib>

namespace {

class TestHome {
public:
    TestHome() {
#ifndef _WIN32
        setenv("HOME", home.path().c_str(), 1);
        for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DOCUMENTS_DIR"})
            unsetenv(name);
#endif
    }

    TemporaryDirectory home;
};

const TestHome testHome;

} // namespace

const std::filesystem::path& testHomeFolder() {
    return testHome.home.path();
}
