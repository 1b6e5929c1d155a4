// SPDX-License-Identifier: GPL-3.0-or-later
// The preset manager's operations on files and folders.
#include "presets/manager/FileIdentity.h"
#include "presets/manager/PresetFileNames.h"
#include "presets/manager/PresetFileWriter.h"
#include "presets/manager/QMGenericPresetManager.h"
#include "presets/record/Utf8Path.h"

#include <system_error>

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t userRootSelector = 0x20000;

std::string withExtension(const std::string& name) {
    return name + std::string(PresetFileNames::extension);
}

bool isThere(const fs::path& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

} // namespace

bool QMGenericPresetManager::rescanAfter(bool succeeded) {
    if (succeeded)
        rescan();
    return succeeded;
}

void QMGenericPresetManager::revealPreset(std::uint32_t folderSelector, std::uint32_t index) {
    if (const QMPresetItem* const preset = findPreset(folderSelector, index))
        desktop->reveal(preset->path());
}

bool QMGenericPresetManager::trashPreset(std::uint32_t folderSelector, std::uint32_t index) {
    const QMPresetItem* const preset = findPreset(folderSelector, index);
    return preset != nullptr && rescanAfter(desktop->moveToTrash(preset->path()));
}

bool QMGenericPresetManager::trashFolder(std::uint32_t folderSelector) {
    const QMPresetFolder* const folder = findFolder(folderSelector).folder;
    return folder != nullptr && rescanAfter(desktop->moveToTrash(folder->path()));
}

/// Gives up a name that something else has: what can be restored goes to the recycle bin, an empty
/// folder goes for a folder. False where the name has to stay taken.
bool QMGenericPresetManager::vacate(const std::string& path, bool forFolder) {
    std::error_code error;
    const fs::path taken = pathFromUtf8(path);
    if (fs::is_directory(fs::symlink_status(taken, error)))
        return forFolder && fs::remove(taken, error); // fails where something is in it
    return !forFolder && desktop->moveToTrash(path);
}

/// Not by the toolkit's move: that deletes what has the new name before it moves anything, and does
/// so for good.
bool QMGenericPresetManager::moveBeside(const std::string& path, const std::string& newName) {
    const fs::path source = pathFromUtf8(path);
    const fs::path target = source.parent_path() / pathFromUtf8(newName);
    const std::string targetPath = utf8FromPath(target);
    if (!isThere(source))
        return false;
    // A change between capitals and small letters can meet the file itself.
    std::error_code error;
    if (isThere(target) && fileIdentity(path) != fileIdentity(targetPath) &&
        !vacate(targetPath, fs::is_directory(source, error)))
        return false;
    fs::rename(source, target, error);
    return !error;
}

bool QMGenericPresetManager::renamePreset(std::uint32_t folderSelector, std::uint32_t index,
                                          const std::string& newName) {
    const QMPresetItem* const preset = findPreset(folderSelector, index);
    return preset != nullptr && PresetFileNames::isUsable(newName) &&
           rescanAfter(moveBeside(preset->path(), withExtension(newName)));
}

bool QMGenericPresetManager::renameFolder(std::uint32_t folderSelector,
                                          const std::string& newName) {
    const QMPresetFolder* const folder = findFolder(folderSelector).folder;
    return folder != nullptr && PresetFileNames::isUsable(newName) &&
           rescanAfter(moveBeside(folder->path(), newName));
}

bool QMGenericPresetManager::createFolder(const std::string& name) {
    const QMPresetFolder* const userRoot = root(1);
    if (userRoot == nullptr || !PresetFileNames::isUsable(name))
        return false;
    const fs::path parent = pathFromUtf8(userRoot->path());
    std::error_code error;
    fs::create_directories(parent, error);
    // Says false, without an error, for one that is there.
    return rescanAfter(fs::create_directory(parent / pathFromUtf8(name), error) && !error);
}

bool QMGenericPresetManager::savePresetAs(std::uint32_t folderSelector, const std::string& name,
                                          const QMGenericPreset& record, std::uint64_t) {
    const QMPresetFolder* const folder = findFolder(folderSelector).folder;
    if (folder == nullptr || !PresetFileNames::isUsable(name))
        return false;
    const std::string directory = folder->path();
    std::error_code error;
    fs::create_directories(pathFromUtf8(directory), error);
    if (!PresetFileWriter::save(directory + "/" + withExtension(name), record))
        return false;
    refresh();
    return true;
}

bool QMGenericPresetManager::savePreset(std::uint32_t folderSelector, std::uint32_t index,
                                        const QMGenericPreset& record, std::uint64_t extra) {
    QMPresetItem* const preset = findPreset(folderSelector, index);
    if (preset == nullptr)
        return false;
    if (preset->isFactory())
        return savePresetAs(userRootSelector, preset->displayName() + " copy", record, extra);
    auto saved = std::make_unique<QMGenericPreset>(record);
    saved->uniqueId = preset->uniqueId();
    if (!PresetFileWriter::save(preset->path(), *saved))
        return false; // the item keeps what is in its file
    preset->setRecord(std::move(saved));
    refresh();
    return true;
}
