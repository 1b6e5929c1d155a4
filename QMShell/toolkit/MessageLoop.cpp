// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/toolkit/MessageLoop.h"

#ifdef _WIN32
#    include "QMShell/toolkit/SystemMessages.h"
#else
#    include "QMShell/toolkit/HostDrivenMessages.h"
#    include "QMShell/toolkit/OwnMessageThread.h"
#endif

std::unique_ptr<MessageLoop>
makeMessageLoop([[maybe_unused]] std::unique_ptr<IHostRunLoop> hostRunLoop) {
#ifdef _WIN32
    return std::make_unique<SystemMessages>();
#else
    if (hostRunLoop) {
        auto driven = std::make_unique<HostDrivenMessages>(std::move(hostRunLoop));
        if (driven->isDriven())
            return driven;
    }
    return std::make_unique<OwnMessageThread>();
#endif
}
