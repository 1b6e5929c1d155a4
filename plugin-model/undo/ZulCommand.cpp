// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/undo/ZulCommand.h"

#include <cstdio>

void ZulCommand::print() const {
    std::fprintf(stderr, "Base ZulCommand with Direct Object %p\n",
                 static_cast<const void*>(target_));
}
