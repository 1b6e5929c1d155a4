// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/QMPresetItem.h"

#include "presets/manager/QMPresetFolder.h"
#include "presets/record/GenericPresetFormat.h"
#include "presets/record/StdFileStream.h"

#include <optional>
#include <utility>

namespace {

std::string breadcrumbOf(const QMPresetItem::Origin& origin) {
    std::string text = origin.isFactory ? "Factory > " : "User > ";
    if (origin.parent != nullptr)
        text += origin.parent->displayName() + " > ";
    return text + origin.displayName;
}

} // namespace

QMPresetItem::QMPresetItem(Origin from)
    : origin(std::move(from))
    , breadcrumb_(breadcrumbOf(origin)) {}

QMPresetItem::~QMPresetItem() = default;

std::string QMPresetItem::path() const {
    return origin.parent != nullptr ? origin.parent->path() + "/" + origin.fileName
                                    : origin.fileName;
}

QMPresetItem* QMPresetItem::findByFileName(std::string_view text) {
    return text == origin.fileName ? this : nullptr;
}

std::uint64_t QMPresetItem::uniqueId() {
    const QMGenericPreset* const held = record();
    return held != nullptr ? held->uniqueId : 0;
}

QMGenericPreset* QMPresetItem::record() {
    if (record_ != nullptr)
        return record_.get();
    StdFileStream stream(path(), "rb");
    if (!stream.isOpen())
        return nullptr;
    std::optional<QMGenericPreset> read = readGenericPreset(stream, UndecodableExtension::drop);
    sound = read.has_value();
    record_ = std::make_unique<QMGenericPreset>(std::move(read).value_or(QMGenericPreset()));
    return record_.get();
}

void QMPresetItem::setRecord(std::unique_ptr<QMGenericPreset> newRecord) {
    if (newRecord.get() == record_.get())
        static_cast<void>(newRecord.release());
    else
        record_ = std::move(newRecord);
    sound = record_ != nullptr;
}

bool QMPresetItem::hasSoundRecord() {
    return record() != nullptr && sound;
}
