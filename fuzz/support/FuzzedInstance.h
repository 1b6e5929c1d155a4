// SPDX-License-Identifier: GPL-3.0-or-later
// The product's instance behind the readers: a fresh one for each input, in the same state each
// time, and the questions whether it is still in order.
#pragma once

#include "brolt/model/QMBrolt_PlugIn.h"

#include <functional>
#include <string>

struct QMGenericPreset;

class FuzzedInstance {
public:
    /// Stereo, with both snapshots populated and different, an extension document and settings
    /// that are not the defaults. The log is silent from here on.
    FuzzedInstance();

    QMBrolt_PlugIn plugIn;

    /// Everything that is saved, as text.
    [[nodiscard]] std::string state() const;

    /// The part of it that restoring a record does not change: the active snapshot goes by the
    /// record's identifier from then on, and whether the plug-in is bypassed is left alone.
    [[nodiscard]] std::string restorableState() const;

    /// Ends the process unless every value is a number within its range, and the state saved now
    /// can be read back and restores itself in another instance.
    void requireOrder() const;
};

enum class Outcome {
    done,  ///< the reader returned
    threw, ///< it threw what the JSON library throws, and the state is as before
};

/// Runs a reader that may throw the JSON library's exceptions and no other. Where it does, the
/// state must be what it was.
Outcome runReader(FuzzedInstance& instance, const std::function<void()>& reader);
