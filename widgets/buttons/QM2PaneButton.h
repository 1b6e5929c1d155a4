// SPDX-License-Identifier: GPL-3.0-or-later
// A button of two panes. [message thread]
#pragma once

#include "widgets/buttons/PaneButton.h"

class QM2PaneButton final : public PaneButton {
public:
    QM2PaneButton()
        : PaneButton(2, Texts::whole) {}
};
