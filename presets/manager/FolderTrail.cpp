// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/FolderTrail.h"

FolderTrail::Step::Step(FolderTrail& of, const std::string& path)
    : trail(of) {
    ++trail.depth;
    if (const auto identity = fileIdentity(path))
        visits = &trail.visitsOf[*identity];
    allowed = trail.depth <= deepest &&
              (visits == nullptr || (!visits->onTheWay && visits->count < mostVisits));
    if (allowed && visits != nullptr) {
        ++visits->count;
        visits->onTheWay = true;
    }
}

FolderTrail::Step::~Step() {
    --trail.depth;
    if (allowed && visits != nullptr)
        visits->onTheWay = false;
}
