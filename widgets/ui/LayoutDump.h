// SPDX-License-Identifier: GPL-3.0-or-later
// A layout as the text of the table it is built from, for designers to paste into a product's
// source. [any thread]
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <span>
#include <string>

/// The declaration with one line for each entry, as they come; nothing is added to end the table.
[[nodiscard]] std::string layoutTableText(std::span<const ZulControlAreaDescriptor> entries);
