// SPDX-License-Identifier: GPL-3.0-or-later
#include "brolt/library/tests/support/HostStream.h"

#include <algorithm>
#include <cstring>

using Steinberg::int32;
using Steinberg::int64;
using Steinberg::tresult;

tresult PLUGIN_API HostStream::read(void* buffer, int32 count, int32* done) {
    ++reads;
    if (done != nullptr)
        *done = 0;
    if (buffer == nullptr || count < 0)
        return Steinberg::kInvalidArgument;
    if (position >= readsFailFrom)
        return Steinberg::kResultFalse;
    const std::size_t left = bytes.size() - std::min(position, bytes.size());
    const std::size_t given =
        std::min({static_cast<std::size_t>(count), left, mostAtOnce, readsFailFrom - position});
    if (given != 0)
        std::memcpy(buffer, bytes.data() + position, given);
    position += given;
    if (done != nullptr)
        *done = static_cast<int32>(given);
    return Steinberg::kResultOk;
}

tresult PLUGIN_API HostStream::write(void* buffer, int32 count, int32* done) {
    ++writes;
    if (done != nullptr)
        *done = 0;
    if (buffer == nullptr || count < 0)
        return Steinberg::kInvalidArgument;
    const auto size = static_cast<std::size_t>(count);
    if (position + size > writesFailFrom)
        return Steinberg::kResultFalse;
    bytes.resize(std::max(bytes.size(), position + size));
    std::memcpy(bytes.data() + position, buffer, size);
    position += size;
    if (done != nullptr)
        *done = count;
    return Steinberg::kResultOk;
}

tresult PLUGIN_API HostStream::seek(int64 to, int32 mode, int64* result) {
    int64 target = to;
    if (mode == kIBSeekCur)
        target += static_cast<int64>(position);
    else if (mode == kIBSeekEnd)
        target += static_cast<int64>(bytes.size());
    if (!canSeek || target < 0 || target > static_cast<int64>(bytes.size()))
        return Steinberg::kResultFalse;
    position = static_cast<std::size_t>(target);
    if (result != nullptr)
        *result = target;
    return Steinberg::kResultOk;
}

tresult PLUGIN_API HostStream::tell(int64* at) {
    if (!canSeek || at == nullptr)
        return Steinberg::kResultFalse;
    *at = static_cast<int64>(position);
    return Steinberg::kResultOk;
}
