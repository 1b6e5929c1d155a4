// SPDX-License-Identifier: GPL-3.0-or-later
// A flat menu whose items stand in a grid, about as wide as it is high. [message thread]
#pragma once

#include "widgets/menus/QMFlatPopupMenuWidget.h"

class QMFlatMenuGridWidget final : public QMFlatPopupMenuWidget {
protected:
    [[nodiscard]] int menuColumns() const override;
};
