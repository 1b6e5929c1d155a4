// SPDX-License-Identifier: GPL-3.0-or-later
// Work that is to be done on the toolkit's message thread. Whoever holds a message owns it until
// the dispatcher takes it.
#pragma once

class QMPortableMessage {
public:
    QMPortableMessage() = default;
    virtual ~QMPortableMessage() = default;
    QMPortableMessage(const QMPortableMessage&) = delete;
    QMPortableMessage& operator=(const QMPortableMessage&) = delete;

    /// Does the work. [message thread]
    virtual void messageCallback() = 0;
};
