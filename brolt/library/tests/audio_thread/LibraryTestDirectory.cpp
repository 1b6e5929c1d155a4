// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the files that the library writes, its log above all, out of the directory the tests are
// started in.
#include "services/tests/TestWorkingDirectory.h"

namespace {

[[maybe_unused]] const auto* const environment =
    ::testing::AddGlobalTestEnvironment(new TestWorkingDirectory);

} // namespace
