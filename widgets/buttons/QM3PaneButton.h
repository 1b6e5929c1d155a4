// SPDX-License-Identifier: GPL-3.0-or-later
// A button of three panes. [message thread]
#pragma once

#include "widgets/buttons/PaneButton.h"

class QM3PaneButton final : public PaneButton {
public:
    QM3PaneButton()
        : PaneButton(3, Texts::whole) {}
};
