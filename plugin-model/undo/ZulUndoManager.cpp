// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugin-model/undo/ZulUndoManager.h"

#include <cstdio>
#include <new>
#include <utility>

/// Marks the time of a replay and collects what it records in a group; also when a command throws,
/// so that the history stays usable.
class ZulUndoManager::ReplayScope {
public:
    ReplayScope(ZulUndoManager& replayingManager, bool& directionFlag)
        : manager(replayingManager)
        , direction(directionFlag) {
        direction = true;
        manager.beginGroup();
    }

    ~ReplayScope() {
        manager.endGroup();
        direction = false;
    }

    ReplayScope(const ReplayScope&) = delete;
    ReplayScope& operator=(const ReplayScope&) = delete;

private:
    ZulUndoManager& manager;
    bool& direction;
};

std::unique_ptr<ZulUndoManager::Group> ZulUndoManager::createGroup() const {
    return std::unique_ptr<Group>(new (std::nothrow) Group);
}

void ZulUndoManager::add(std::unique_ptr<ZulCommand> command) {
    if (suspended != 0)
        return;
    command->attach(*this);
    if (!undoing && !redoing)
        clearRedo();
    const bool opensGroup = openGroup == nullptr;
    if (opensGroup)
        beginGroup();
    if (openGroup != nullptr)
        openGroup->push_back(std::move(command));
    else
        std::fputs("....Dropping command\n", stderr);
    if (opensGroup)
        endGroup();
}

void ZulUndoManager::beginGroup() {
    ++groupDepth;
    if (groupDepth == 0)
        openGroup = createGroup();
}

void ZulUndoManager::endGroup() {
    if (groupDepth == noGroupOpen)
        return;
    --groupDepth;
    if (groupDepth != noGroupOpen)
        return;
    std::unique_ptr<Group> closed = std::move(openGroup);
    if (closed == nullptr || closed->empty())
        return;
    auto& stack = undoing ? redoStack : undoStack;
    stack.push_back(std::move(closed));
}

bool ZulUndoManager::canUndo() const {
    return undoCount() != 0;
}

std::size_t ZulUndoManager::undoCount() const {
    const bool openCounts = openGroup != nullptr && !openGroup->empty();
    return undoStack.size() + (openCounts ? 1 : 0);
}

void ZulUndoManager::clear() {
    clearUndo();
    clearRedo();
}

void ZulUndoManager::replay(Group& group) {
    while (!group.empty()) {
        const std::unique_ptr<ZulCommand> command = std::move(group.back());
        group.pop_back();
        command->execute(*this);
    }
}

template <typename Notification>
void ZulUndoManager::tellObservers(Notification notification) {
    // An observer may remove itself or others while it is told.
    const std::set<ZulUndoObserver*> told = observers;
    for (ZulUndoObserver* observer : told) {
        if (observers.contains(observer))
            (observer->*notification)();
    }
}

void ZulUndoManager::undo() {
    if (undoing || redoing)
        return;
    if (openGroup != nullptr)
        undoInOpenGroup();
    else
        undoNewestGroup();
}

void ZulUndoManager::undoNewestGroup() {
    if (undoStack.empty())
        return;
    tellObservers(&ZulUndoObserver::undoWillStart);
    const std::unique_ptr<Group> group = std::move(undoStack.back());
    undoStack.pop_back();
    {
        ReplayScope scope(*this, undoing);
        replay(*group);
    }
    tellObservers(&ZulUndoObserver::undoDone);
}

void ZulUndoManager::undoInOpenGroup() {
    if (openGroup->empty())
        return;
    tellObservers(&ZulUndoObserver::undoWillStart);
    std::unique_ptr<Group> setAside = std::move(openGroup);
    const std::int32_t depthSetAside = std::exchange(groupDepth, noGroupOpen);
    const auto putBack = [&] {
        openGroup = std::move(setAside);
        groupDepth = depthSetAside;
    };
    try {
        ReplayScope scope(*this, undoing);
        const std::unique_ptr<ZulCommand> newest = std::move(setAside->back());
        setAside->pop_back();
        newest->execute(*this);
    } catch (...) {
        putBack();
        throw;
    }
    putBack();
    tellObservers(&ZulUndoObserver::undoDone);
}

void ZulUndoManager::redo() {
    if (undoing || redoing || redoStack.empty())
        return;
    tellObservers(&ZulUndoObserver::redoWillStart);
    const std::unique_ptr<Group> group = std::move(redoStack.back());
    redoStack.pop_back();
    {
        ReplayScope scope(*this, redoing);
        replay(*group);
    }
    tellObservers(&ZulUndoObserver::redoDone);
}

std::string ZulUndoManager::undoDescription() const {
    const Group* group = openGroup.get();
    if (group == nullptr && !undoStack.empty())
        group = undoStack.back().get();
    return group != nullptr && !group->empty() ? group->back()->description() : "Unknown";
}

std::string ZulUndoManager::redoDescription() const {
    const bool known = !redoStack.empty() && !redoStack.back()->empty();
    return known ? redoStack.back()->back()->redoDescription() : "Unknown";
}

void ZulUndoManager::retarget(const QM::IQMParameterValues* old,
                              QM::IQMParameterValues* replacement) {
    const auto inGroup = [&](const Group& group) {
        for (const auto& command : group)
            command->retarget(old, replacement);
    };
    for (const auto& group : undoStack)
        inGroup(*group);
    for (const auto& group : redoStack)
        inGroup(*group);
    if (openGroup != nullptr)
        inGroup(*openGroup);
}
