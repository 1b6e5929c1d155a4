// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the preset folders into a tree. A preset without a unique identifier gets one on the way,
// in its file too where that can be written; where not, one made of its content, so that it is the
// same in every run.
#pragma once

#include "presets/manager/FolderTrail.h"
#include "presets/manager/PresetFolders.h"
#include "presets/manager/PresetTree.h"
#include "presets/manager/QMDirectoryIterator.h"
#include "presets/manager/QMGenericPresetManager.h"

class PresetScan {
public:
    /// Without a filter every file is a preset.
    PresetScan(const DirectoryIteratorFactory& iterators, QMGenericPresetManager::Filter* accepted);

    /// Folders that are missing or cannot be read are empty. [message thread]
    [[nodiscard]] PresetTree scan(const PresetFolders& folders);

private:
    std::unique_ptr<QMPresetFolder> scanRoot(const std::string& name, const std::string& path,
                                             bool isFactory);
    void scanInto(QMPresetFolder& folder);
    [[nodiscard]] bool isPreset(const std::string& folder, const std::string& name) const;
    void addFolder(QMPresetFolder& parent, const std::string& name);
    void addFile(QMPresetFolder& parent, const std::string& name);
    void identify(QMPresetItem& preset);

    const DirectoryIteratorFactory& makeIterator;
    QMGenericPresetManager::Filter* filter;
    FolderTrail trail;
    PresetTree tree;
};
