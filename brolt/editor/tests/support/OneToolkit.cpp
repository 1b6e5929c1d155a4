// SPDX-License-Identifier: GPL-3.0-or-later
// One toolkit for all tests of this program, as in a host that opens one editor after the other:
// the pictures are decoded once.
#include <gtest/gtest.h>
#include <juce_events/juce_events.h>

#include <optional>

namespace {

class OneToolkit final : public ::testing::Environment {
public:
    void SetUp() override { toolkit.emplace(); }

    void TearDown() override { toolkit.reset(); }

private:
    std::optional<juce::ScopedJuceInitialiser_GUI> toolkit;
};

[[maybe_unused]] const auto* const registration =
    ::testing::AddGlobalTestEnvironment(new OneToolkit);

} // namespace
