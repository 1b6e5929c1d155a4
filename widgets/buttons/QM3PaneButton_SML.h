// SPDX-License-Identifier: GPL-3.0-or-later
// A small button of three panes, with the first letter of each item. [message thread]
#pragma once

#include "widgets/buttons/PaneButton.h"

class QM3PaneButton_SML final : public PaneButton {
public:
    QM3PaneButton_SML()
        : PaneButton(3, Texts::initials) {}
};
