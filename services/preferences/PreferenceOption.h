// SPDX-License-Identifier: GPL-3.0-or-later
// One of the things that a user chooses from in the preferences panel.
#pragma once

#include <string>

namespace QM {

struct PreferenceOption {
    std::string label;  ///< UTF-8
    float value = 0.0F; ///< what the item becomes, converted to the item's type

    bool operator==(const PreferenceOption&) const = default;
};

} // namespace QM
