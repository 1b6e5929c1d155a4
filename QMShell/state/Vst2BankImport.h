// SPDX-License-Identifier: GPL-3.0-or-later
// State of the VST 2 plug-in in the VST3 one's place: a host that replaces the former by the latter
// hands the state over as a bank, inside of which lies the VST 2 chunk.
#pragma once

#include "plugin-model/FourCharCode.h"

#include <optional>

class IStateByteStream;
class IStateEntrySink;

struct Vst2BankImport {
    IStateEntrySink& sink;
    /// When given, a bank of another plug-in is declined.
    std::optional<FourCharCode> expectedPlugIn = std::nullopt;
};

/// Hands each entry of the chunk in a bank at the stream's position to the sink, in order. The
/// chunk's settings record stays unread: the host is to hear of every parameter as of an edit.
/// False, and the sink has heard nothing, when there is no bank with a chunk of ours; banks of
/// programs have none. The stream is put back to where it was in every case. [message thread]
bool importVst2Bank(IStateByteStream& stream, const Vst2BankImport& import);
