// SPDX-License-Identifier: GPL-3.0-or-later
// A host's stream in memory, sound or faulty in the ways that streams of real hosts are.
#pragma once

#include "brolt/library/tests/support/HostObject.h"
#include "presets/record/tests/support/ByteBuilder.h"

#include <pluginterfaces/base/ibstream.h>

#include <limits>

class HostStream : public HostObject<Steinberg::IBStream> {
public:
    HostStream() = default;

    /// Over bytes, from the first one on.
    explicit HostStream(Bytes content)
        : bytes(std::move(content)) {}

    Bytes bytes;
    std::size_t position = 0;

    // Faults.

    /// Reads behind this byte answer a failure; the end of the stream, in contrast, answers success
    /// and fewer bytes.
    std::size_t readsFailFrom = std::numeric_limits<std::size_t>::max();
    /// Bytes that one read gives at most.
    std::size_t mostAtOnce = std::numeric_limits<std::size_t>::max();
    /// Room: writes behind this byte answer a failure.
    std::size_t writesFailFrom = std::numeric_limits<std::size_t>::max();
    bool canSeek = true;

    // What it was asked.

    int reads = 0;
    int writes = 0;

    Steinberg::tresult PLUGIN_API read(void* buffer, Steinberg::int32 count,
                                       Steinberg::int32* done) override;
    Steinberg::tresult PLUGIN_API write(void* buffer, Steinberg::int32 count,
                                        Steinberg::int32* done) override;
    Steinberg::tresult PLUGIN_API seek(Steinberg::int64 to, Steinberg::int32 mode,
                                       Steinberg::int64* result) override;
    Steinberg::tresult PLUGIN_API tell(Steinberg::int64* at) override;
};
