// SPDX-License-Identifier: GPL-3.0-or-later
// The preset manager's answers from its trees.
#include "presets/manager/QMGenericPresetManager.h"

namespace {

// Categories: all, and one for each root.
constexpr std::uint32_t categoryAll = 0;
constexpr std::uint32_t categoryFactory = 1;
constexpr std::uint32_t categoryUser = 2;
constexpr std::uint32_t categoryCount = 3;

} // namespace

QMPresetFolder* QMGenericPresetManager::root(std::size_t index) const {
    if (index == 0)
        return tree.factoryRoot.get();
    return index == 1 ? tree.userRoot.get() : nullptr;
}

std::array<QMPresetFolder*, 2> QMGenericPresetManager::rootsOf(std::uint32_t category) const {
    if (category == categoryAll)
        return {root(0), root(1)};
    return {root(category - 1), nullptr};
}

QMGenericPresetManager::FoundFolder
QMGenericPresetManager::findFolder(std::uint32_t folderSelector) const {
    constexpr int categoryShift = 16;
    constexpr std::uint32_t folderMask = 0xFFFF;
    std::size_t left = folderSelector & folderMask;
    for (QMPresetFolder* const candidate : rootsOf(folderSelector >> categoryShift)) {
        if (candidate == nullptr)
            continue;
        if (left == 0)
            return {candidate, 1};
        const std::size_t below = left - 1;
        if (QMPresetFolder* const found = candidate->subFolderAt(below))
            return {found, 2};
        left = below - candidate->numSubFolders();
    }
    return {};
}

QMPresetItem* QMGenericPresetManager::findPreset(std::uint32_t folderSelector,
                                                 std::uint32_t index) {
    const SettingLocator locator{.folderSelector = folderSelector, .index = index};
    if (locator.namesUniqueId())
        return tree.byUniqueId[locator.uniqueId()];
    const FoundFolder found = findFolder(folderSelector);
    return found.folder != nullptr ? found.folder->presetAt(index) : nullptr;
}

// ---- Folders

std::uint32_t QMGenericPresetManager::numFolders(std::uint32_t category) {
    std::size_t count = 0;
    for (const QMPresetFolder* const each : rootsOf(category))
        count += each != nullptr ? 1 + each->numSubFolders() : 0;
    return static_cast<std::uint32_t>(count);
}

std::string QMGenericPresetManager::folderDisplayName(std::uint32_t folderSelector) {
    const FoundFolder found = findFolder(folderSelector);
    if (found.folder == nullptr)
        return {};
    const std::string& name = found.folder->displayName();
    if (name.empty())
        return found.folder->isFactory() ? "Factory" : "User";
    return std::string(found.depth, '\t') + name;
}

std::uint32_t QMGenericPresetManager::numEntries(std::uint32_t folderSelector) {
    const FoundFolder found = findFolder(folderSelector);
    return found.folder != nullptr ? static_cast<std::uint32_t>(found.folder->numChildren()) : 0;
}

// ---- Presets

std::string QMGenericPresetManager::presetName(std::uint32_t folderSelector, std::uint32_t index) {
    const QMPresetItem* const preset = findPreset(folderSelector, index);
    return preset != nullptr ? preset->displayName() : std::string();
}

std::uint64_t QMGenericPresetManager::presetUniqueId(std::uint32_t folderSelector,
                                                     std::uint32_t index) {
    QMPresetItem* const preset = findPreset(folderSelector, index);
    return preset != nullptr ? preset->uniqueId() : 0;
}

const QMGenericPreset* QMGenericPresetManager::loadPreset(std::uint32_t folderSelector,
                                                          std::uint32_t index) {
    QMPresetItem* const preset = findPreset(folderSelector, index);
    return preset != nullptr ? preset->record() : nullptr;
}

QMPresetItem* QMGenericPresetManager::presetAtPosition(std::size_t position) const {
    return position < tree.presets.size() ? tree.presets[position] : nullptr;
}

const QMGenericPreset* QMGenericPresetManager::recordAtPosition(std::size_t position) const {
    QMPresetItem* const preset = presetAtPosition(position);
    return preset != nullptr ? preset->record() : nullptr;
}

std::int32_t QMGenericPresetManager::positionOfPath(const std::string& path) const {
    for (QMPresetFolder* const each : rootsOf(categoryAll)) {
        if (each == nullptr)
            continue;
        if (const QMPresetItem* const found = each->findByFileName(path))
            return static_cast<std::int32_t>(found->creationIndex()) - 1;
    }
    return -1;
}

// ---- Categories and locators

std::uint32_t QMGenericPresetManager::numCategories() {
    return categoryCount;
}

std::string QMGenericPresetManager::categoryName(std::uint32_t category) {
    switch (category) {
    case categoryAll:
        return "All";
    case categoryFactory:
        return "Factory";
    case categoryUser:
        return "User";
    default:
        return {};
    }
}

SettingLocator QMGenericPresetManager::normaliseLocator(const SettingLocator& locator,
                                                        std::uint32_t category) {
    const QMPresetItem* const preset = findPreset(locator.folderSelector, locator.index);
    if (preset == nullptr)
        return locator;
    std::uint32_t sum = 0;
    for (const QMPresetFolder* each = preset->parent(); each != nullptr; each = each->parent()) {
        sum += each->positionInFolder();
        if (each == root(0) && category == categoryUser)
            sum = 0;
        if (each == root(1) && category == categoryAll)
            sum += numFolders(categoryFactory);
        if (each == root(1) && category == categoryFactory)
            sum = 0;
    }
    return {sum, preset->positionInFolder(), locator.valid, locator.manual};
}
