// SPDX-License-Identifier: GPL-3.0-or-later
// What clicks with keys held, the right button and double clicks do. One set for all controls of
// the process, because it is the user's habit and no matter of a plug-in. [message thread]
#pragma once

struct ControlClickOptions {
    enum class DoubleClick { nothing = 0, reset = 1, takeFocus = 2 };

    bool altClickResets = true;
    DoubleClick doubleClickAction = DoubleClick::reset;
    bool rightClickTakesFocus = true;
    bool controlClickTakesFocus = false;
};

[[nodiscard]] ControlClickOptions& controlClickOptions();
