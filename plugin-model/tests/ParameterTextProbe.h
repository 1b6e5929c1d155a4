// SPDX-License-Identifier: GPL-3.0-or-later
// Calls something that writes a text into a buffer and answers what was written. The bytes behind
// the buffer's size are guarded: whoever writes there fails the test.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <string>

namespace parameterTest {

/// What the buffer holds before the call, and still after a call that leaves it alone.
inline constexpr const char* untouched = "<untouched>";

/// The text after write(buffer, size). The buffer holds `untouched` before the call.
template <typename Write>
std::string textWritten(Write write, std::size_t size = 64) {
    constexpr char guard = '#';
    std::array<char, 256> buffer{};
    buffer.fill(guard);
    std::memcpy(buffer.data(), untouched, std::strlen(untouched) + 1);
    const std::array<char, 256> before = buffer;

    write(buffer.data(), size);

    EXPECT_EQ(std::memcmp(buffer.data() + size, before.data() + size, buffer.size() - size), 0)
        << "bytes behind the buffer were written";
    const void* end = std::memchr(buffer.data(), '\0', buffer.size());
    EXPECT_NE(end, nullptr) << "the text is not terminated";
    return end != nullptr ? std::string(buffer.data()) : std::string();
}

} // namespace parameterTest
