// SPDX-License-Identifier: GPL-3.0-or-later
// Whether two settings records are the same sound: what lights the modified mark and the compare
// button.
#pragma once

#include "presets/record/QMGenericPreset.h"

#include <set>

/// Compares every value of the first record that the second has as well, those in the ignored set
/// left out. Values are equal within 1e-5 of the sum of their magnitudes, or within 1e-5 when that
/// sum is at most 1; not a number equals nothing. Entries that one side alone has do not count, so
/// that a preset of an older version can still be the current one. Records with different values
/// tags differ. [any thread]
[[nodiscard]] bool presetsAreEqual(const QMGenericPreset& first, const QMGenericPreset& second,
                                   const std::set<FourCharCode>& ignored = {});
