// SPDX-License-Identifier: GPL-3.0-or-later
// The picture of a widget in an editor's table: the bytes of a file compiled into the library, or
// an image that is ready. The bytes must stay where they are.
#pragma once

#include "widgets/base/QMWidgetDescriptor.h"

#include <juce_graphics/juce_graphics.h>

#include <cstddef>
#include <utility>

struct ImageStyleRecord : QMWidgetStyleRecord {
    ImageStyleRecord() = default;

    ImageStyleRecord(const void* bytes, std::size_t numBytes)
        : data(bytes)
        , size(numBytes) {}

    explicit ImageStyleRecord(juce::Image readyImage)
        : image(std::move(readyImage)) {}

    const void* data = nullptr;
    std::size_t size = 0; ///< in bytes
    juce::Image image;    ///< used when there are no bytes
};
