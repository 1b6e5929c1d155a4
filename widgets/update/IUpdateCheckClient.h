// SPDX-License-Identifier: GPL-3.0-or-later
// Who is told of a newer version.
#pragma once

#include "services/update/UpdateReply.h"

class IUpdateCheckClient {
public:
    virtual ~IUpdateCheckClient() = default;

    /// Called at most once. Must not make other clients go. [message thread]
    virtual void updateReplyArrived(const QM::UpdateReply& reply) = 0;
};
