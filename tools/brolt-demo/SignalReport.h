// SPDX-License-Identifier: GPL-3.0-or-later
//
// The measurements that the demonstration prints.

#pragma once

#include "tools/brolt-host/TextTable.h"

#include <filesystem>
#include <vector>

/// Heading and one row a file: name, length, peak, lowest strong frequency. Throws HostError for a
/// file that cannot be read. [message thread]
std::vector<TextRow> signalReport(const std::vector<std::filesystem::path>& files);
