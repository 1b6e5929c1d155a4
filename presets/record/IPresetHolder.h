// SPDX-License-Identifier: GPL-3.0-or-later
// Settings put aside by somebody who will give them back, without knowing what they are: the preset
// browser keeps them while presets are tried out.
#pragma once

class IPresetHolder {
public:
    virtual ~IPresetHolder() = default;
};
