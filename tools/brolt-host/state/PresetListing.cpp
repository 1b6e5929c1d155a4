// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/brolt-host/state/PresetListing.h"

#include "presets/manager/PortableDirectoryIterator.h"
#include "presets/manager/QMGenericPresetFilter.h"
#include "presets/manager/QMGenericPresetManager.h"
#include "presets/manager/QMPresetFolder.h"
#include "tools/brolt-host/HostError.h"
#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/Utf8.h"

#include <array>
#include <cstdio>

namespace fs = std::filesystem;

namespace {

std::string absoluteFolder(const fs::path& folder) {
    std::error_code error;
    if (!fs::is_directory(folder, error))
        throw HostError::ofFile(folder, "is not a folder");
    return utf8FromPath(fs::absolute(folder, error));
}

/// As the editor sets it up: every file whose head can be read is a preset.
std::unique_ptr<QMGenericPresetManager::Filter> anyPreset(const INoxPlugInType& type) {
    auto filter = std::make_unique<QMGenericPresetFilter>(
        type.manufacturerCode(), type.productCode(), QMGenericPreset::anyVariant);
    filter->setMatchAnyManufacturer(true);
    filter->setMatchAnyProduct(true);
    filter->setMatchAnyVariant(true);
    return filter;
}

std::string identifierText(std::uint64_t id) {
    std::array<char, 24> text{};
    std::snprintf(text.data(), text.size(), "0x%016llX", static_cast<unsigned long long>(id));
    return text.data();
}

} // namespace

std::vector<TextRow> presetListing(const PresetListOptions& options) {
    constexpr int stereo = 2;
    ProductModel product;
    const INoxPlugInType& type = product.typeForChannels(stereo);
    QMGenericPresetManager manager(PortableDirectoryIterator::factory(), anyPreset(type));
    PresetFolders folders = findPresetFolders(type.name());
    if (options.factoryFolder)
        folders.factory = absoluteFolder(*options.factoryFolder);
    if (options.userFolder)
        folders.user = absoluteFolder(*options.userFolder);
    manager.setFolders(folders);
    manager.rescan();

    std::vector<TextRow> rows{{"Category", "Folder", "Name", "Identifier"}};
    for (std::size_t i = 0; i < manager.numPresets(); ++i) {
        QMPresetItem& preset = *manager.presetAtPosition(i);
        const bool inRoot = preset.parent()->parent() == nullptr;
        rows.push_back({preset.isFactory() ? "Factory" : "User",
                        inRoot ? "-" : preset.parent()->displayName(), preset.displayName(),
                        identifierText(preset.uniqueId())});
    }
    return rows;
}
