// SPDX-License-Identifier: GPL-3.0-or-later
// A folder in the manager's tree, owner of what is in it.
#pragma once

#include "presets/manager/QMPresetItem.h"

#include <vector>

class QMPresetFolder : public QMPresetItem {
public:
    explicit QMPresetFolder(Origin from);
    ~QMPresetFolder() override;

    [[nodiscard]] bool isFolder() const override { return true; }

    [[nodiscard]] std::size_t numChildren() const override { return children.size(); }

    [[nodiscard]] std::size_t numSubFolders() const override { return folders.size(); }

    [[nodiscard]] QMPresetItem* childAt(std::size_t index) const override;
    [[nodiscard]] QMPresetItem* presetAt(std::size_t index) const override;
    /// The child at a place that counts folders alone. Null beyond the last. [message thread]
    [[nodiscard]] QMPresetFolder* subFolderAt(std::size_t index) const;
    /// A folder takes a text that begins with its own file name and asks its children for what
    /// comes after the separator.
    [[nodiscard]] QMPresetItem* findByFileName(std::string_view text) override;

    /// Answers the child. [message thread]
    QMPresetItem& addPreset(std::unique_ptr<QMPresetItem> preset);
    /// Becomes the folder's parent. Answers the child. [message thread]
    QMPresetFolder& addFolder(std::unique_ptr<QMPresetFolder> folder);

    /// Sorts the children by the bytes of their display names and numbers them. [message thread]
    void sortChildren();

private:
    std::vector<std::unique_ptr<QMPresetItem>> children;
    // The children by kind, in the order of children.
    std::vector<QMPresetItem*> presets;
    std::vector<QMPresetFolder*> folders;
};
