// SPDX-License-Identifier: GPL-3.0-or-later
// A VST3 host's stream as the state envelopes see one.
#pragma once

#include "QMShell/state/IStateByteStream.h"

#include <pluginterfaces/base/ibstream.h>

class IBStreamBytes final : public IStateByteStream {
public:
    explicit IBStreamBytes(Steinberg::IBStream& hostStream)
        : stream(hostStream) {}

    [[nodiscard]] std::size_t read(std::size_t size, void* destination) override;
    [[nodiscard]] std::size_t write(std::size_t size, const void* bytes) override;
    [[nodiscard]] std::int64_t tell() const override;
    bool seek(std::int64_t position) override;

private:
    Steinberg::IBStream& stream;
};
