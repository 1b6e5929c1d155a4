// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/vst3/Vst3StateStream.h"

using namespace Steinberg;

namespace {

void answer(int32* destination, std::size_t size) {
    if (destination != nullptr)
        *destination = static_cast<int32>(size);
}

} // namespace

tresult PLUGIN_API Vst3StateStream::read(void* buffer, int32 size, int32* sizeRead) {
    if (size < 0 || (buffer == nullptr && size > 0))
        return kInvalidArgument;
    answer(sizeRead, memory.read(static_cast<std::size_t>(size), buffer));
    return kResultOk;
}

tresult PLUGIN_API Vst3StateStream::write(void* buffer, int32 size, int32* sizeWritten) {
    if (size < 0 || (buffer == nullptr && size > 0))
        return kInvalidArgument;
    answer(sizeWritten, memory.write(static_cast<std::size_t>(size), buffer));
    return kResultOk;
}

tresult PLUGIN_API Vst3StateStream::seek(int64 offset, int32 from, int64* newPosition) {
    const auto length = static_cast<int64>(memory.bytes().size());
    int64 origin = 0;
    switch (from) {
    case kIBSeekSet:
        break;
    case kIBSeekCur:
        origin = memory.tell();
        break;
    case kIBSeekEnd:
        origin = length;
        break;
    default:
        return kInvalidArgument;
    }
    // Compared so that no sum can overflow.
    if (offset < -origin || offset > length - origin || !memory.seek(origin + offset))
        return kInvalidArgument;
    if (newPosition != nullptr)
        *newPosition = memory.tell();
    return kResultOk;
}

tresult PLUGIN_API Vst3StateStream::tell(int64* position) {
    if (position == nullptr)
        return kInvalidArgument;
    *position = memory.tell();
    return kResultOk;
}
