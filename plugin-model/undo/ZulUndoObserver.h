// SPDX-License-Identifier: GPL-3.0-or-later
// Who wants to know that an undo or redo runs, so as not to react to each of its changes by itself.
// [message thread]
#pragma once

class ZulUndoObserver {
public:
    virtual ~ZulUndoObserver() = default;

    virtual void undoWillStart() {}

    virtual void undoDone() {}

    virtual void redoWillStart() {}

    virtual void redoDone() {}
};
