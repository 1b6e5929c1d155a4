// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/statics/StyleImage.h"

#include "widgets/images/ResourceImages.h"
#include "widgets/statics/ImageStyleRecord.h"

juce::Image imageOfStyle(const QMWidgetStyleRecord* style) {
    const auto* const record = dynamic_cast<const ImageStyleRecord*>(style);
    if (record == nullptr)
        return {};
    const bool hasBytes = record->data != nullptr && record->size > 0;
    return hasBytes ? imageFromMemory(record->data, record->size) : record->image;
}
