// SPDX-License-Identifier: GPL-3.0-or-later
// One recorded step of what undo and redo replay: how to put one thing back to where it was.
// Replaying it records the step in the other direction. [message thread]
#pragma once

#include <string>

class ZulUndoManager;

namespace QM {
class IQMParameterValues;
}

class ZulCommand {
public:
    /// The target is not owned and must outlive the command, or be replaced with retarget.
    explicit ZulCommand(QM::IQMParameterValues* targetValues)
        : target_(targetValues) {}

    virtual ~ZulCommand() = default;
    ZulCommand(const ZulCommand&) = delete;
    ZulCommand& operator=(const ZulCommand&) = delete;

    /// Replays the step.
    virtual void execute(ZulUndoManager&) {}

    /// Follows a target that was replaced; a command with another target stays as it is.
    virtual void retarget(const QM::IQMParameterValues* old, QM::IQMParameterValues* replacement) {
        if (target_ == old)
            target_ = replacement;
    }

    /// Called when the command is added to a manager.
    virtual void attach(ZulUndoManager&) {}

    /// What the step does, as menus show it after "Undo".
    [[nodiscard]] virtual std::string description() const { return {}; }

    /// What menus show after "Redo".
    [[nodiscard]] virtual std::string redoDescription() const { return description(); }

    /// Writes a line about the command to the standard error stream.
    virtual void print() const;

protected:
    [[nodiscard]] QM::IQMParameterValues* target() const { return target_; }

private:
    QM::IQMParameterValues* target_;
};
