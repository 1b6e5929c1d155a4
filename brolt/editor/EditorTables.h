// SPDX-License-Identifier: GPL-3.0-or-later
// What the product's editor is made of: which widgets there are, where they stand, what explains
// them.
#pragma once

#include "widgets/ui/QMWidgetPluginUI.h"

namespace QMBrolt {

constexpr std::int32_t editorWidth = 775; ///< design units
constexpr std::int32_t editorHeight = 679;

/// The tables of an instance with so many channels: two have the stereo layout, any other number
/// the mono layout. They live as long as the library. [message thread]
[[nodiscard]] QMWidgetPluginUI::Tables editorTables(std::int32_t channels);

} // namespace QMBrolt
