// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/vst3/IBStreamBytes.h"

#include <algorithm>
#include <limits>

using namespace Steinberg;

namespace {

int32 countOf(std::size_t size) {
    return static_cast<int32>(std::min<std::size_t>(size, std::numeric_limits<int32>::max()));
}

/// What a call moved by its own account, between nothing and what was asked for.
std::size_t movedOf(tresult result, int32 moved, int32 wanted) {
    return result == kResultOk ? static_cast<std::size_t>(std::clamp(moved, 0, wanted)) : 0;
}

} // namespace

std::size_t IBStreamBytes::read(std::size_t size, void* destination) {
    const int32 wanted = countOf(size);
    int32 moved = 0;
    const tresult result = stream.read(destination, wanted, &moved);
    return movedOf(result, moved, wanted);
}

std::size_t IBStreamBytes::write(std::size_t size, const void* bytes) {
    const int32 wanted = countOf(size);
    int32 moved = 0;
    // The interface's pointer is not const; streams do not write through it.
    const tresult result = stream.write(const_cast<void*>(bytes), wanted, &moved);
    return movedOf(result, moved, wanted);
}

std::int64_t IBStreamBytes::tell() const {
    int64 position = -1;
    return stream.tell(&position) == kResultOk ? position : -1;
}

bool IBStreamBytes::seek(std::int64_t position) {
    return stream.seek(position, IBStream::kIBSeekSet, nullptr) == kResultOk;
}
