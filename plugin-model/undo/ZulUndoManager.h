// SPDX-License-Identifier: GPL-3.0-or-later
// The undo and redo history of one values object. Commands are kept in groups; a group is what one
// undo takes back. While a group is replayed, the commands that the replay records make up the
// group for the other direction. The number of steps is not limited.
//
// Everything here is for the [message thread], or the host's thread while it applies state; nothing
// locks.
#pragma once

#include "plugin-model/undo/ZulCommand.h"
#include "plugin-model/undo/ZulUndoObserver.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <vector>

class ZulUndoManager {
public:
    ZulUndoManager() = default;
    virtual ~ZulUndoManager() = default;
    ZulUndoManager(const ZulUndoManager&) = delete;
    ZulUndoManager& operator=(const ZulUndoManager&) = delete;

    /// Records a command in the open group, or in a group of its own when none is open. A new
    /// command makes the redo history void, unless it is recorded by an undo or a redo. While
    /// recording is suspended the command is dropped.
    void add(std::unique_ptr<ZulCommand> command);

    /// Opens a group, or goes one deeper into the open one.
    void beginGroup();
    /// The outermost end moves the group to its stack; an empty group is forgotten. An end without
    /// a begin does nothing.
    void endGroup();

    [[nodiscard]] bool canUndo() const;

    [[nodiscard]] bool canRedo() const { return !redoStack.empty(); }

    [[nodiscard]] std::size_t undoCount() const;

    [[nodiscard]] std::size_t redoCount() const { return redoStack.size(); }

    void clearUndo() { undoStack.clear(); }

    void clearRedo() { redoStack.clear(); }

    void clear();

    /// Takes the newest group back; inside an open group the newest command of that alone. Does
    /// nothing when there is none, and while another undo or redo runs.
    void undo();
    void redo();

    /// "Unknown" when there is none.
    [[nodiscard]] std::string undoDescription() const;
    [[nodiscard]] std::string redoDescription() const;

    /// Until resumed as often as suspended, added commands are dropped.
    void suspend() { ++suspended; }

    void resume() { --suspended; }

    [[nodiscard]] bool isSuspended() const { return suspended != 0; }

    /// Observers are not owned; one that is added twice is told once.
    void addObserver(ZulUndoObserver& observer) { observers.insert(&observer); }

    void removeObserver(ZulUndoObserver& observer) { observers.erase(&observer); }

    /// Makes every recorded command follow a target that was replaced.
    void retarget(const QM::IQMParameterValues* old, QM::IQMParameterValues* replacement);

protected:
    using Group = std::vector<std::unique_ptr<ZulCommand>>;

    /// Null when there is no memory for it.
    [[nodiscard]] virtual std::unique_ptr<Group> createGroup() const;

private:
    static constexpr std::int32_t noGroupOpen = -1;

    class ReplayScope;

    void replay(Group& group);
    void undoNewestGroup();
    void undoInOpenGroup();
    template <typename Notification>
    void tellObservers(Notification notification);

    std::vector<std::unique_ptr<Group>> undoStack;
    std::vector<std::unique_ptr<Group>> redoStack;
    bool undoing = false;
    bool redoing = false;
    std::int32_t groupDepth = noGroupOpen;
    std::unique_ptr<Group> openGroup;
    std::int32_t suspended = 0;
    std::set<ZulUndoObserver*> observers;
};
