// SPDX-License-Identifier: GPL-3.0-or-later
// The preference group of an editor's looks: items, labels, options, ranges, defaults.
#pragma once

#include "services/preferences/PreferenceGroup.h"
#include "widgets/ui/appearance/AppearanceOffers.h"

/// "UI Preferences", every item at its default. [any thread]
[[nodiscard]] QM::PreferenceGroup appearanceGroup(const AppearanceOffers& offers);
