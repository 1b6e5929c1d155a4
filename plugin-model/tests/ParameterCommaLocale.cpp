// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/tests/ParameterCommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <random>

namespace parameterTest {
namespace {

bool selectLocale(const char* name) {
    if (std::setlocale(LC_NUMERIC, name) == nullptr)
        return false;
    // Some C libraries accept any name and change nothing.
    return std::string(std::localeconv()->decimal_point) == ",";
}

#ifndef _WIN32

/// A German locale in a temporary folder, which goes at the end of the process.
class CompiledLocale {
public:
    CompiledLocale()
        : folder(std::filesystem::temp_directory_path() /
                 ("qm-parameter-test-locale-" + std::to_string(std::random_device()()))) {
        std::filesystem::create_directory(folder);
        const std::string command = "localedef --no-archive -i de_DE -f UTF-8 '" +
                                    (folder / name).string() + "' >/dev/null 2>&1";
        compiled = std::system(command.c_str()) == 0;
    }

    ~CompiledLocale() {
        std::error_code ignored;
        std::filesystem::remove_all(folder, ignored);
    }

    CompiledLocale(const CompiledLocale&) = delete;
    CompiledLocale& operator=(const CompiledLocale&) = delete;

    [[nodiscard]] bool select() const {
        if (!compiled)
            return false;
        setenv("LOCPATH", folder.c_str(), 1);
        const bool selected = selectLocale(name);
        unsetenv("LOCPATH");
        return selected;
    }

private:
    static constexpr const char* name = "de_DE.UTF-8";
    std::filesystem::path folder;
    bool compiled = false;
};

bool selectCompiledLocale() {
    static const CompiledLocale locale;
    return locale.select();
}

#else

bool selectCompiledLocale() {
    return false;
}

#endif

} // namespace

CommaLocale::CommaLocale()
    : localeBefore(std::setlocale(LC_NUMERIC, nullptr)) {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German", "de-DE"}) {
        inForce = selectLocale(name);
        if (inForce)
            return;
    }
    inForce = selectCompiledLocale();
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_NUMERIC, localeBefore.c_str());
}

} // namespace parameterTest
