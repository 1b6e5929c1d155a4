// SPDX-License-Identifier: GPL-3.0-or-later
// The home folder of this test program; see TestHome.cpp. Windows knows no such thing: there, tests
// must keep away from the user's folders by themselves.
#pragma once

#include <filesystem>

const std::filesystem::path& testHomeFolder();
