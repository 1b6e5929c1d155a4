// SPDX-License-Identifier: GPL-3.0-or-later
//
// The stream from which a VST3 plug-in reads its state: bytes in memory, as a workstation keeps
// them in its project.

#pragma once

#include "QMShell/state/StateMemoryStream.h"

#include <pluginterfaces/base/funknownimpl.h>
#include <pluginterfaces/base/ibstream.h>

/// Nobody owns it: it must outlive the call that it is handed to. [message thread]
class Vst3StateStream
    : public Steinberg::U::ImplementsNonDestroyable<Steinberg::U::Directly<Steinberg::IBStream>> {
public:
    /// Over a copy of the bytes, at their beginning.
    explicit Vst3StateStream(std::span<const std::byte> bytes = {})
        : memory(bytes) {}

    Steinberg::tresult PLUGIN_API read(void* buffer, Steinberg::int32 size,
                                       Steinberg::int32* sizeRead) override;
    /// Replaces what lies at the position and lengthens the stream where that is not enough.
    Steinberg::tresult PLUGIN_API write(void* buffer, Steinberg::int32 size,
                                        Steinberg::int32* sizeWritten) override;
    /// Within the stream, its end included; elsewhere it is an invalid argument.
    Steinberg::tresult PLUGIN_API seek(Steinberg::int64 offset, Steinberg::int32 from,
                                       Steinberg::int64* newPosition) override;
    Steinberg::tresult PLUGIN_API tell(Steinberg::int64* position) override;

    void rewind() { memory.seek(0); }

    [[nodiscard]] const std::vector<std::byte>& bytes() const { return memory.bytes(); }

private:
    StateMemoryStream memory;
};
