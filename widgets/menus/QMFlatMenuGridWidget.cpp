// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/menus/QMFlatMenuGridWidget.h"

int QMFlatMenuGridWidget::menuColumns() const {
    int columns = 1;
    while (columns * columns < getItems().size())
        ++columns;
    return columns;
}
