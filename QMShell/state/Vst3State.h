// SPDX-License-Identifier: GPL-3.0-or-later
// Saving and restoring an instance in a VST3 host: the envelope, and before it the state of the
// VST 2 plug-in that the VST3 one took the place of, which the host hands over as a bank.
#pragma once

#include "QMShell/state/Vst2BankImport.h"

class INoxPlugInState;

/// Writes the complete state. False when the stream did not take all of it; the interface's answer
/// is success all the same. [message thread]
bool writeVst3State(IStateByteStream& stream, const INoxPlugInState& instance);

enum class Vst3StateReading {
    refused,        ///< not readable; the instance is unchanged
    bankImported,   ///< the values of a VST 2 bank were set
    recordApplied,  ///< the envelope's record was applied
    recordDeclined, ///< a readable record that the instance did not take: another product's
};

/// What the interface answers: a record was read, whether the instance took it or not.
[[nodiscard]] constexpr bool isAccepted(Vst3StateReading reading) {
    return reading != Vst3StateReading::refused;
}

/// Tries the bank first and then, from the same position, the envelope. Throws std::length_error
/// for an envelope with a negative length, and what applying the record throws; the instance is
/// unchanged then. [message thread]
Vst3StateReading readVst3State(IStateByteStream& stream, INoxPlugInState& instance,
                               const Vst2BankImport& import);
