// SPDX-License-Identifier: GPL-3.0-or-later
// The role of an instance towards the undo and redo commands. Without a values object there is
// nothing to undo. [message thread]
#pragma once

#include <cstdint>
#include <string>

class INoxPlugInUndo {
public:
    virtual ~INoxPlugInUndo() = default;

    virtual void undo() = 0;
    virtual void redo() = 0;
    [[nodiscard]] virtual bool canUndo() const = 0;
    [[nodiscard]] virtual bool canRedo() const = 0;
    virtual void clearUndo() = 0;
    virtual void clearRedo() = 0;
    virtual void clearUndoAndRedo() = 0;
    /// "Undo" joined to what would be undone without a blank between, or "Nothing to Undo"; empty
    /// without a values object.
    [[nodiscard]] virtual std::string undoMenuText() const = 0;
    /// The same with "Redo" and "Nothing to Redo".
    [[nodiscard]] virtual std::string redoMenuText() const = 0;
};
