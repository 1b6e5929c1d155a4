// SPDX-License-Identifier: GPL-3.0-or-later
// A component that can say how wide its text would like it to be. [message thread]
#pragma once

class IIdealWidthComputer {
public:
    virtual ~IIdealWidthComputer() = default;

    /// Pixels, at the component's present height.
    [[nodiscard]] virtual int getIdealWidth() const = 0;
};
