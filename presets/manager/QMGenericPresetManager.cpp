// SPDX-License-Identifier: GPL-3.0-or-later
#include "presets/manager/QMGenericPresetManager.h"

#include "presets/manager/PresetDesktop.h"
#include "presets/manager/PresetScan.h"
#include "presets/record/Utf8Path.h"

#include <system_error>
#include <utility>

namespace {

std::string absolute(const std::string& path) {
    std::error_code error;
    const auto answer = std::filesystem::absolute(pathFromUtf8(path), error);
    return error ? path : utf8FromPath(answer);
}

} // namespace

QMGenericPresetManager::QMGenericPresetManager(DirectoryIteratorFactory iterators,
                                               std::unique_ptr<Filter> accepted)
    : makeIterator(std::move(iterators))
    , filter(std::move(accepted))
    , desktop(std::make_unique<PresetDesktop>()) {}

QMGenericPresetManager::~QMGenericPresetManager() = default;

void QMGenericPresetManager::setFolders(const PresetFolders& roots) {
    givenFolders = PresetFolders{absolute(roots.factory), absolute(roots.user)};
}

void QMGenericPresetManager::refresh() {
    rescan();
}

void QMGenericPresetManager::rescan() {
    tree = {}; // before the new one, so that there are never two
    PresetScan scan(makeIterator, filter.get());
    tree = scan.scan(givenFolders ? *givenFolders : presetFoldersOfProcess(productFolderName));
}
