// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the files of this test program out of the directory it is started in.
#include "services/tests/TestWorkingDirectory.h"

namespace {

[[maybe_unused]] const auto* const environment =
    ::testing::AddGlobalTestEnvironment(new TestWorkingDirectory);

} // namespace
