// SPDX-License-Identifier: GPL-3.0-or-later
// One preset file in the manager's tree; with QMPresetFolder the whole of it. Items live from one
// reading of the disk to the next.
#pragma once

#include "presets/record/QMGenericPreset.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

class QMPresetFolder;

class QMPresetItem {
public:
    /// What an item is made from.
    struct Origin {
        std::string displayName = {};
        std::string fileName = {};        ///< name in the folder; for a root its absolute path
        QMPresetFolder* parent = nullptr; ///< none for a root; not owned
        bool isFactory = false;
        std::uint32_t creationIndex = 0; ///< place in scan order, from 1; 0 for folders
    };

    explicit QMPresetItem(Origin from);
    virtual ~QMPresetItem();
    QMPresetItem(const QMPresetItem&) = delete;
    QMPresetItem& operator=(const QMPresetItem&) = delete;

    // ---- Children, which folders alone have

    /// [message thread]
    [[nodiscard]] virtual bool isFolder() const { return false; }

    /// Folders and presets. [message thread]
    [[nodiscard]] virtual std::size_t numChildren() const { return 0; }

    /// [message thread]
    [[nodiscard]] virtual std::size_t numSubFolders() const { return 0; }

    /// Null beyond the last. [message thread]
    [[nodiscard]] virtual QMPresetItem* childAt(std::size_t) const { return nullptr; }

    /// The child at a place that counts presets alone. Null beyond the last. [message thread]
    [[nodiscard]] virtual QMPresetItem* presetAt(std::size_t) const { return nullptr; }

    // ---- Names

    /// [message thread]
    [[nodiscard]] const std::string& fileName() const { return origin.fileName; }

    /// The parent's path, "/" and the file name. [message thread]
    [[nodiscard]] std::string path() const;

    /// The breadcrumb stays as it was made. [message thread]
    void setDisplayName(std::string name) { origin.displayName = std::move(name); }

    /// The file name without ".qmpreset" and what follows it; a folder's name. [message thread]
    [[nodiscard]] const std::string& displayName() const { return origin.displayName; }

    /// "Factory > " or "User > ", the folder's name and " > " where there was a parent, the name:
    /// what the list of all presets is sorted by. [message thread]
    [[nodiscard]] const std::string& breadcrumb() const { return breadcrumb_; }

    /// The item whose place below this one the text names, "folder/folder/preset"; null when there
    /// is none. A preset answers to its file name alone. [message thread]
    [[nodiscard]] virtual QMPresetItem* findByFileName(std::string_view text);

    // ---- The record

    /// Of the record; 0 when there is none. [message thread]
    [[nodiscard]] std::uint64_t uniqueId();

    /// Read from the file the first time it is asked for; null when that cannot be opened, and
    /// empty when it holds no record. [message thread]
    [[nodiscard]] QMGenericPreset* record();

    /// Replaces the record; the one that is held already may be given again. [message thread]
    void setRecord(std::unique_ptr<QMGenericPreset> newRecord);

    /// False as well for the empty record of a file that is something else or damaged.
    /// [message thread]
    [[nodiscard]] bool hasSoundRecord();

    // ---- Place

    /// Null for a root. [message thread]
    [[nodiscard]] QMPresetFolder* parent() const { return origin.parent; }

    /// [message thread]
    [[nodiscard]] bool isUser() const { return !origin.isFactory; }

    /// [message thread]
    [[nodiscard]] bool isFactory() const { return origin.isFactory; }

    /// Place in the order of the scan, from 1; 0 for folders. [message thread]
    [[nodiscard]] std::uint32_t creationIndex() const { return origin.creationIndex; }

    /// Place in the sorted list of all presets, from 0. [message thread]
    [[nodiscard]] std::uint32_t globalPosition() const { return globalPosition_; }

    /// [message thread]
    void setGlobalPosition(std::uint32_t position) { globalPosition_ = position; }

    /// Place in the folder: of a preset among its presets, from 0; of a folder among its folders,
    /// from 1. [message thread]
    [[nodiscard]] std::uint32_t positionInFolder() const { return positionInFolder_; }

    /// [message thread]
    void setPositionInFolder(std::uint32_t position) { positionInFolder_ = position; }

protected:
    /// For a folder that was made without one. The breadcrumb stays as it was made.
    /// [message thread]
    void setParent(QMPresetFolder* parent) { origin.parent = parent; }

private:
    Origin origin;
    std::string breadcrumb_;
    std::unique_ptr<QMGenericPreset> record_;
    bool sound = false;
    std::uint32_t globalPosition_ = 0;
    std::uint32_t positionInFolder_ = 0;
};
