// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of saved states: an instance that takes them, or refuses them and stays as it is.
#pragma once

#include "brolt/library/tests/support/HostStream.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/StateFixtures.h"

class StateRestoringTest : public ::testing::Test {
protected:
    LibraryInstance instance;

    /// It has the values of the record that StateFixtures.h saves.
    static void expectSaved(LibraryInstance& restored) {
        EXPECT_NEAR(restored.plain("afre"), 123.5, 1e-9);
        EXPECT_NEAR(restored.plain("gain"), -6.0, 1e-9);
        EXPECT_EQ(restored.plain("osc2"), 0.0);
        EXPECT_NEAR(restored.plain("wetd"), 40.0, 1e-9);
    }

    /// Refused, and nothing has changed.
    void expectRefused(HostStream& stream) {
        const Bytes before = instance.state();
        EXPECT_EQ(instance.component().setState(&stream), Steinberg::kResultFalse);
        EXPECT_EQ(instance.state(), before);
    }

    void expectRefused(const Bytes& bytes) {
        HostStream stream(bytes);
        expectRefused(stream);
    }
};
