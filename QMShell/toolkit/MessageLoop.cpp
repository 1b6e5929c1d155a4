// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/MessageLoop.h"

#ifdef _WIN32
#    include "QMShell/toolkit/SystemMessages.h"
#else
#    include "QMShell/toolkit/LinuxMessages.h"
#endif

#include <utility>

std::shared_ptr<MessageLoop>
makeMessageLoop([[maybe_unused]] std::shared_ptr<IHostRunLoop> hostRunLoop) {
#ifdef _WIN32
    return std::make_shared<SystemMessages>();
#else
    return LinuxMessages::make(std::move(hostRunLoop));
#endif
}
