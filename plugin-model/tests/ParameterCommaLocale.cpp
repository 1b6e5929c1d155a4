// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/tests/ParameterCommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <random>

namespace parameterTest {
namespace {

bool selectLocale(const char* name) {
    if (std::setlocale(LC_NUMERIC, name) == nullptr)
        return false;
    // Some C libraries accept any name and change nothing.
    return std::string(std::localeconv()->decimal_point) == ",";
}

} // namespace

CommaLocale::CommaLocale()
    : localeBefore(std::setlocale(LC_NUMERIC, nullptr)) {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German", "de-DE"}) {
        inForce = selectLocale(name);
        if (inForce)
            return;
    }
    inForce = compileAndSelect();
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_NUMERIC, localeBefore.c_str());
    if (!compiledFolder.empty()) {
        std::error_code ignored;
        std::filesystem::remove_all(compiledFolder, ignored);
    }
}

bool CommaLocale::compileAndSelect() {
#ifdef _WIN32
    return false;
#else
    compiledFolder = std::filesystem::temp_directory_path() /
                     ("qm-parameter-test-locale-" + std::to_string(std::random_device()()));
    std::filesystem::create_directory(compiledFolder);
    const std::string name = "de_DE.UTF-8";
    const std::string command = "localedef --no-archive -i de_DE -f UTF-8 '" +
                                (compiledFolder / name).string() + "' >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0)
        return false;
    setenv("LOCPATH", compiledFolder.c_str(), 1);
    const bool selected = selectLocale(name.c_str());
    unsetenv("LOCPATH");
    return selected;
#endif
}

} // namespace parameterTest
