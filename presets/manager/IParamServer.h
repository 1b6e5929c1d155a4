// SPDX-License-Identifier: GPL-3.0-or-later
// What the editor asks of a store of presets: to list them by folder, to load and save them, and
// the file operations behind the preset menu. The browser, the dialogs and the header know presets
// through this interface alone.
//
// A folder is named by a selector: category in the high 16 bits (0 all, 1 factory, 2 user), folder
// inside the category in the low ones. Folder 0 is the category's first root, then come the folders
// directly below it; category 0 goes on with the user root and its folders. A preset is named by
// the first two words of a SettingLocator: a selector and the place among the folder's presets, or,
// where the first word read as a signed number is negative, the two halves of its unique
// identifier. What names nothing gives neutral answers: no text, 0, null, false.
//
// Every operation that changes the disk reads the trees again when it succeeded; selectors, places
// and records given out before are void then. The unique identifier stays.
#pragma once

#include "presets/record/QMGenericPreset.h"
#include "presets/record/SettingLocator.h"

#include <cstdint>
#include <string>

class IParamServer {
public:
    IParamServer() = default;
    virtual ~IParamServer() = default;
    IParamServer(const IParamServer&) = delete;
    IParamServer& operator=(const IParamServer&) = delete;

    // ---- Folders

    /// Roots and the folders directly below them. [message thread]
    [[nodiscard]] virtual std::uint32_t numFolders(std::uint32_t category) = 0;
    /// For lists: the folder's name behind one tabulator for a root, two for a folder below one.
    /// "Factory" or "User" for a folder without a name. [message thread]
    [[nodiscard]] virtual std::string folderDisplayName(std::uint32_t folderSelector) = 0;
    /// Everything in the folder, folders included: more than it has presets. [message thread]
    [[nodiscard]] virtual std::uint32_t numEntries(std::uint32_t folderSelector) = 0;

    // ---- Presets

    /// [message thread]
    [[nodiscard]] virtual std::string presetName(std::uint32_t folderSelector,
                                                 std::uint32_t index) = 0;
    /// Reads the preset's record where that was not done yet. [message thread]
    [[nodiscard]] virtual std::uint64_t presetUniqueId(std::uint32_t folderSelector,
                                                       std::uint32_t index) = 0;
    /// Shows the file in the system's file browser. [message thread]
    virtual void revealPreset(std::uint32_t folderSelector, std::uint32_t index) = 0;
    /// Moves the file to the system's recycle bin, never further. [message thread]
    virtual bool trashPreset(std::uint32_t folderSelector, std::uint32_t index) = 0;
    /// Gives the file another name (UTF-8, without extension) in its folder. A preset that has the
    /// name already goes to the recycle bin. False for names that no file can have. [message
    /// thread]
    virtual bool renamePreset(std::uint32_t folderSelector, std::uint32_t index,
                              const std::string& newName) = 0;

    // ---- Changing folders

    /// Makes a folder directly below the user root, and the root where it is missing. False when it
    /// is there already. [message thread]
    virtual bool createFolder(const std::string& name) = 0;
    /// [message thread]
    virtual bool renameFolder(std::uint32_t folderSelector, const std::string& newName) = 0;
    /// Moves the folder with everything in it to the recycle bin. [message thread]
    virtual bool trashFolder(std::uint32_t folderSelector) = 0;

    // ---- Records

    /// Writes a record to a file of that name in the folder, whose directory is made where it is
    /// missing. A file that is there is written over as savePreset does. The last argument is an
    /// identifier that goes with objects of another kind; a record carries its own.
    /// [message thread]
    virtual bool savePresetAs(std::uint32_t folderSelector, const std::string& name,
                              const QMGenericPreset& record, std::uint64_t extra = 0) = 0;
    /// Writes a record over a user preset, which keeps its unique identifier. The file is not cut:
    /// what was longer keeps its end, and with it its old extension and identifier. A factory
    /// preset stays as it is; a copy, its name followed by " copy", is saved in the user root.
    /// [message thread]
    virtual bool savePreset(std::uint32_t folderSelector, std::uint32_t index,
                            const QMGenericPreset& record, std::uint64_t extra = 0) = 0;
    /// The preset's record, read from its file the first time; null when there is no preset or its
    /// file cannot be opened. Valid until the trees are read again. [message thread]
    [[nodiscard]] virtual const QMGenericPreset* loadPreset(std::uint32_t folderSelector,
                                                            std::uint32_t index) = 0;

    // ---- Categories and locators

    /// [message thread]
    [[nodiscard]] virtual std::uint32_t numCategories() = 0;
    /// "All", "Factory", "User". [message thread]
    [[nodiscard]] virtual std::string categoryName(std::uint32_t category) = 0;
    /// The locator's first two words turned into folder and place as a list of the category's
    /// folders counts them; the locator itself when it names no preset. [message thread]
    [[nodiscard]] virtual SettingLocator normaliseLocator(const SettingLocator& locator,
                                                          std::uint32_t category) = 0;

    // ---- The disk

    /// Does what rescan does. [message thread]
    virtual void refresh() = 0;
    /// Reads both trees from the disk. [message thread]
    virtual void rescan() = 0;
};
