// SPDX-License-Identifier: GPL-3.0-or-later
// Where the widgets of the product's editor stand.
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <span>

namespace QMBrolt {

/// Each with its entry of zeros. The order is that of the making, the first at the back.
/// [any thread]
[[nodiscard]] std::span<const ZulControlAreaDescriptor> monoLayout();
[[nodiscard]] std::span<const ZulControlAreaDescriptor> stereoLayout();

} // namespace QMBrolt
