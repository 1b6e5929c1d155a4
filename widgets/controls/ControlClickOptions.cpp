// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/controls/ControlClickOptions.h"

ControlClickOptions& controlClickOptions() {
    static ControlClickOptions options;
    return options;
}
