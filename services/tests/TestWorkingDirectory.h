// SPDX-License-Identifier: GPL-3.0-or-later
// The process's log writes into the current directory. A test program that may log registers this
// environment, so that its files end up in a temporary folder and not where it was started.
//
// The directory changes after every test was registered: GoogleTest takes the place for a relative
// report name from the directory at registration. The folder goes with the environment object,
// which GoogleTest keeps until after the process's log has closed its file.
#pragma once

#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

class TestWorkingDirectory : public ::testing::Environment {
public:
    void SetUp() override {
        before = std::filesystem::current_path();
        std::filesystem::current_path(directory.path());
    }

    void TearDown() override { std::filesystem::current_path(before); }

private:
    TemporaryDirectory directory;
    std::filesystem::path before;
};
