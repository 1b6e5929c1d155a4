// SPDX-License-Identifier: GPL-3.0-or-later
// What the preferences panel lets a user set a number to.
#pragma once

namespace QM {

struct PreferenceRange {
    float minimum = 0.0F; ///< included
    float maximum = 1.0F; ///< included

    bool operator==(const PreferenceRange&) const = default;
};

} // namespace QM
