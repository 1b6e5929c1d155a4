// SPDX-License-Identifier: GPL-3.0-or-later
// The snapshots as members of a record's extension document, under the names they have there:
//
//   "mSnapshots"          array of arrays of plain values, in the order of the parameters
//   "mSnapshotsUIDs"      array of unsigned integers
//   "mSnapshotPopulated"  array of booleans
//   "mActiveSnapshot"     integer, -1 none, -2 the blend
//   "mBlendX", "mBlendY"  numbers
#pragma once

#include "plugin-model/snapshots/QMSnapshotTable.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>

namespace QM {

/// More snapshots than any product has; what a document holds beyond them is not taken, so that a
/// small document cannot ask for much memory.
constexpr std::int32_t mostSnapshots = 64;

/// Adds the six members to a document, which becomes an object when it is none. [any thread]
void writeSnapshotMembers(const QMSnapshotTable& table, nlohmann::json& document);

/// The snapshot members of a document, decoded: each is taken only when it is present. Reading them
/// and putting them into force are two steps, so that a document with a wrong member is refused
/// before anything changes.
class SnapshotMembers {
public:
    /// Throws nlohmann::json::type_error for a member of the wrong type. [any thread]
    explicit SnapshotMembers(const nlohmann::json& document);
    ~SnapshotMembers();
    SnapshotMembers(const SnapshotMembers&) = delete;
    SnapshotMembers& operator=(const SnapshotMembers&) = delete;

    /// Puts the members that were there into a table. The table keeps at least its own number of
    /// snapshots and then conforms to the current values. [any thread]
    void applyTo(QMSnapshotTable& table, std::span<const double> currentValues) const;

    /// Removes the six members from a document. [any thread]
    static void removeFrom(nlohmann::json& document);

private:
    struct Decoded;
    std::unique_ptr<const Decoded> decoded;
};

} // namespace QM
