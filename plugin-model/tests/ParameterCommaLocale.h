// SPDX-License-Identifier: GPL-3.0-or-later
// Switches the process's numbers to decimal commas, as a host may do, for as long as it lives.
#pragma once

#include <string>

namespace parameterTest {

class CommaLocale {
public:
    /// Tries the system's German locales; where there is none, compiles one into a temporary folder
    /// with the system's own tool, once a process.
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

    /// False when the machine has no such locale and cannot make one.
    [[nodiscard]] bool isInForce() const { return inForce; }

private:
    std::string localeBefore;
    bool inForce = false;
};

} // namespace parameterTest
