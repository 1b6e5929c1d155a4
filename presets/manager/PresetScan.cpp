// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/PresetScan.h"

#include "presets/manager/BreadcrumbOrder.h"
#include "presets/manager/PresetFileNames.h"
#include "presets/manager/PresetFileWriter.h"
#include "presets/record/PresetIdentity.h"

#include <algorithm>
#include <utility>

PresetScan::PresetScan(const DirectoryIteratorFactory& iterators,
                       QMGenericPresetManager::Filter* accepted)
    : makeIterator(iterators)
    , filter(accepted) {}

PresetTree PresetScan::scan(const PresetFolders& folders) {
    tree = {};
    tree.factoryRoot = scanRoot("Factory Presets", folders.factory, true);
    tree.userRoot = scanRoot("User Presets", folders.user, false);
    sortByBreadcrumb(tree.presets);
    std::uint32_t position = 0;
    for (QMPresetItem* preset : tree.presets)
        preset->setGlobalPosition(position++);
    return std::move(tree);
}

std::unique_ptr<QMPresetFolder> PresetScan::scanRoot(const std::string& name,
                                                     const std::string& path, bool isFactory) {
    trail = {};
    auto root = std::make_unique<QMPresetFolder>(
        QMPresetItem::Origin{.displayName = name, .fileName = path, .isFactory = isFactory});
    scanInto(*root);
    return root;
}

void PresetScan::scanInto(QMPresetFolder& folder) {
    const std::string path = folder.path();
    const FolderTrail::Step step(trail, path);
    if (!step.isAllowed())
        return;
    const std::unique_ptr<QMDirectoryIterator> iterator = makeIterator();
    iterator->open(path);
    std::string name;
    bool isDirectory = false;
    while (iterator->next()) {
        iterator->current(name, isDirectory);
        if (isDirectory)
            addFolder(folder, name);
        else if (isPreset(path, name))
            addFile(folder, name);
    }
    folder.sortChildren();
}

bool PresetScan::isPreset(const std::string& folder, const std::string& name) const {
    if (PresetFileNames::isTemporary(name))
        return false;
    return filter == nullptr || filter->accept(std::string(folder).append("/").append(name));
}

void PresetScan::addFolder(QMPresetFolder& parent, const std::string& name) {
    // Made without its parent: the breadcrumb of a folder shows that folder alone.
    scanInto(parent.addFolder(std::make_unique<QMPresetFolder>(QMPresetItem::Origin{
        .displayName = name, .fileName = name, .isFactory = parent.isFactory()})));
}

void PresetScan::addFile(QMPresetFolder& parent, const std::string& name) {
    const auto creationIndex = static_cast<std::uint32_t>(tree.presets.size() + 1);
    QMPresetItem& preset = parent.addPreset(std::make_unique<QMPresetItem>(
        QMPresetItem::Origin{.displayName = PresetFileNames::displayNameOf(name),
                             .fileName = name,
                             .parent = &parent,
                             .isFactory = parent.isFactory(),
                             .creationIndex = creationIndex}));
    tree.presets.push_back(&preset);
    identify(preset);
}

void PresetScan::identify(QMPresetItem& preset) {
    // A file that is no record, or a damaged one, is never written: it may be somebody's text.
    if (!preset.hasSoundRecord())
        return;
    QMGenericPreset& record = *preset.record();
    if (record.uniqueId == 0) {
        record.uniqueId = PresetIdentity::fresh();
        // A file that has gone since it was listed must not come back.
        if (!PresetFileWriter::updateExisting(preset.path(), record))
            record.uniqueId = PresetIdentity::ofContent(record);
    }
    tree.byUniqueId[record.uniqueId] = &preset;
}
