// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/QMPresetFolder.h"

#include <algorithm>
#include <utility>

namespace {

bool isSeparator(char character) {
#ifdef _WIN32
    // File choosers answer with these.
    if (character == '\\')
        return true;
#endif
    return character == '/';
}

const auto byDisplayName = [](const auto& first, const auto& second) {
    return first->displayName() < second->displayName();
};

template <typename Item>
void sortAndNumber(std::vector<Item*>& items, std::uint32_t firstPosition) {
    std::stable_sort(items.begin(), items.end(), byDisplayName);
    for (Item* item : items)
        item->setPositionInFolder(firstPosition++);
}

} // namespace

QMPresetFolder::QMPresetFolder(Origin from)
    : QMPresetItem(std::move(from)) {}

QMPresetFolder::~QMPresetFolder() = default;

QMPresetItem* QMPresetFolder::childAt(std::size_t index) const {
    return index < children.size() ? children[index].get() : nullptr;
}

QMPresetItem* QMPresetFolder::presetAt(std::size_t index) const {
    return index < presets.size() ? presets[index] : nullptr;
}

QMPresetFolder* QMPresetFolder::subFolderAt(std::size_t index) const {
    return index < folders.size() ? folders[index] : nullptr;
}

QMPresetItem* QMPresetFolder::findByFileName(std::string_view text) {
    if (!text.starts_with(fileName()))
        return nullptr;
    text.remove_prefix(fileName().size());
    if (text.empty() || !isSeparator(text.front()))
        return nullptr;
    text.remove_prefix(1);
    for (const auto& child : children)
        if (QMPresetItem* const found = child->findByFileName(text))
            return found;
    return nullptr;
}

QMPresetItem& QMPresetFolder::addPreset(std::unique_ptr<QMPresetItem> preset) {
    presets.push_back(preset.get());
    children.push_back(std::move(preset));
    return *children.back();
}

QMPresetFolder& QMPresetFolder::addFolder(std::unique_ptr<QMPresetFolder> folder) {
    folder->setParent(this);
    folders.push_back(folder.get());
    children.push_back(std::move(folder));
    return *folders.back();
}

void QMPresetFolder::sortChildren() {
    std::stable_sort(children.begin(), children.end(), byDisplayName);
    sortAndNumber(presets, 0);
    sortAndNumber(folders, 1);
}
