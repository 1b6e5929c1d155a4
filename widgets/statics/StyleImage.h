// SPDX-License-Identifier: GPL-3.0-or-later
// From a style record to its picture. [message thread]
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <juce_graphics/juce_graphics.h>

/// A null image for null, for a record of another kind, and where the bytes are no picture.
[[nodiscard]] juce::Image imageOfStyle(const QMWidgetStyleRecord* style);
