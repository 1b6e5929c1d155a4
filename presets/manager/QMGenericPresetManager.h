// SPDX-License-Identifier: GPL-3.0-or-later
// The presets of a product as files in two trees, one installed with it and one of the user's. The
// manager reads both into memory and answers from there; every change goes to the disk first and
// the trees are read again.
//
// Bodies by role: what is asked about folders and presets in QMGenericPresetManagerLookup.cpp, file
// operations in QMGenericPresetManagerFiles.cpp.
#pragma once

#include "presets/manager/IParamServer.h"
#include "presets/manager/IPresetDesktop.h"
#include "presets/manager/PresetFolders.h"
#include "presets/manager/PresetTree.h"
#include "presets/manager/QMDirectoryIterator.h"

#include <array>
#include <optional>

class QMGenericPresetManager : public IParamServer {
public:
    /// Decides which files are presets.
    class Filter {
    public:
        Filter() = default;
        virtual ~Filter() = default;
        Filter(const Filter&) = delete;
        Filter& operator=(const Filter&) = delete;

        /// (path in UTF-8) [message thread]
        [[nodiscard]] virtual bool accept(const std::string& path) = 0;
    };

    /// Without a filter every file is a preset. The trees stay empty until the first rescan.
    explicit QMGenericPresetManager(DirectoryIteratorFactory iterators,
                                    std::unique_ptr<Filter> accepted = nullptr);
    ~QMGenericPresetManager() override;

    // ---- Settings, which hold from the next rescan on

    /// The folder's name in the system's places for presets. The first one that any manager of the
    /// process scans stays for all of them. [message thread]
    void setProductFolderName(std::string name) { productFolderName = std::move(name); }

    /// Null for none. [message thread]
    void setFilter(std::unique_ptr<Filter> newFilter) { filter = std::move(newFilter); }

    /// Other roots than the system's; relative paths start from the current directory.
    /// [message thread]
    void setFolders(const PresetFolders& roots);

    /// Who takes care of recycling and revealing, instead of the user's desktop. [message thread]
    void setDesktop(std::unique_ptr<IPresetDesktop> newDesktop) { desktop = std::move(newDesktop); }

    // ---- IParamServer: questions

    [[nodiscard]] std::uint32_t numFolders(std::uint32_t category) override;
    [[nodiscard]] std::string folderDisplayName(std::uint32_t folderSelector) override;
    [[nodiscard]] std::uint32_t numEntries(std::uint32_t folderSelector) override;
    [[nodiscard]] std::string presetName(std::uint32_t folderSelector,
                                         std::uint32_t index) override;
    [[nodiscard]] std::uint64_t presetUniqueId(std::uint32_t folderSelector,
                                               std::uint32_t index) override;
    [[nodiscard]] const QMGenericPreset* loadPreset(std::uint32_t folderSelector,
                                                    std::uint32_t index) override;
    [[nodiscard]] std::uint32_t numCategories() override;
    [[nodiscard]] std::string categoryName(std::uint32_t category) override;
    [[nodiscard]] SettingLocator normaliseLocator(const SettingLocator& locator,
                                                  std::uint32_t category) override;

    // ---- IParamServer: file operations

    void revealPreset(std::uint32_t folderSelector, std::uint32_t index) override;
    bool trashPreset(std::uint32_t folderSelector, std::uint32_t index) override;
    bool renamePreset(std::uint32_t folderSelector, std::uint32_t index,
                      const std::string& newName) override;
    bool createFolder(const std::string& name) override;
    bool renameFolder(std::uint32_t folderSelector, const std::string& newName) override;
    bool trashFolder(std::uint32_t folderSelector) override;
    bool savePresetAs(std::uint32_t folderSelector, const std::string& name,
                      const QMGenericPreset& record, std::uint64_t extra = 0) override;
    bool savePreset(std::uint32_t folderSelector, std::uint32_t index,
                    const QMGenericPreset& record, std::uint64_t extra = 0) override;
    void refresh() override;
    void rescan() override;

    // ---- The trees themselves, for menus and buttons that step through all presets

    /// 0 the factory root, 1 the user root, null beyond and before the first rescan.
    /// [message thread]
    [[nodiscard]] QMPresetFolder* root(std::size_t index) const;

    /// Length of the sorted list of all presets. [message thread]
    [[nodiscard]] std::size_t numPresets() const { return tree.presets.size(); }

    /// A preset of that list; null beyond its end. [message thread]
    [[nodiscard]] QMPresetItem* presetAtPosition(std::size_t position) const;
    /// Its record, read where that was not done yet. [message thread]
    [[nodiscard]] const QMGenericPreset* recordAtPosition(std::size_t position) const;
    /// For a path as the items have them: the preset's place in scan order, from 0, or -1. That is
    /// its place in the sorted list only where files were found in that order. [message thread]
    [[nodiscard]] std::int32_t positionOfPath(const std::string& path) const;
    /// The preset that a locator's first two words name; null when there is none. [message thread]
    [[nodiscard]] QMPresetItem* findPreset(std::uint32_t folderSelector, std::uint32_t index);

private:
    struct FoundFolder {
        QMPresetFolder* folder = nullptr;
        std::size_t depth = 0; ///< 1 for a root, 2 for a folder below one
    };

    /// Without a folder where there is none.
    [[nodiscard]] FoundFolder findFolder(std::uint32_t folderSelector) const;
    /// Those the category shows: both, one, or none for a category that does not exist.
    [[nodiscard]] std::array<QMPresetFolder*, 2> rootsOf(std::uint32_t category) const;
    /// Rescans after an operation that succeeded; answers whether it did.
    bool rescanAfter(bool succeeded);
    bool vacate(const std::string& path, bool forFolder);
    bool moveBeside(const std::string& path, const std::string& newName);

    DirectoryIteratorFactory makeIterator;
    PresetTree tree;
    std::unique_ptr<Filter> filter;
    std::string productFolderName;
    std::optional<PresetFolders> givenFolders;
    std::unique_ptr<IPresetDesktop> desktop;
};
