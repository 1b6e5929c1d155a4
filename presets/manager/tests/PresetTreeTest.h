// SPDX-License-Identifier: GPL-3.0-or-later
// Two preset trees in a temporary folder, and a manager over them.
#pragma once

#include "presets/manager/PortableDirectoryIterator.h"
#include "presets/manager/QMGenericPresetFilter.h"
#include "presets/manager/QMGenericPresetManager.h"
#include "presets/manager/tests/FakeDesktop.h"
#include "presets/manager/tests/PresetBytes.h"
#include "services/tests/TemporaryDirectory.h"

#include <gtest/gtest.h>

class PresetTreeTest : public ::testing::Test {
protected:
    static constexpr std::uint32_t factoryRoot = 0x10000;
    static constexpr std::uint32_t userRoot = 0x20000;

    TemporaryDirectory directory;
    std::filesystem::path factory = directory / "factory";
    std::filesystem::path user = directory / "user";
    std::filesystem::path trash = directory / "trash";
    DesktopLog desktop;
    QMGenericPresetManager manager{PortableDirectoryIterator::factory()};

    void SetUp() override { prepare(manager); }

    /// Turns a manager to the two trees.
    void prepare(QMGenericPresetManager& any) {
        any.setFolders({utf8FromPath(factory), utf8FromPath(user)});
        any.setDesktop(std::make_unique<FakeDesktop>(desktop, trash));
    }

    /// The filter that the product's editor makes: whatever has a sound header is a preset.
    void acceptEverySoundHeader() {
        auto filter =
            std::make_unique<QMGenericPresetFilter>(code("QML "), code("BRLT"), code("****"));
        filter->setMatchAnyManufacturer(true);
        filter->setMatchAnyProduct(true);
        filter->setMatchAnyVariant(true);
        manager.setFilter(std::move(filter));
    }

    /// A preset with an identifier made of a small number.
    static void writePreset(const std::filesystem::path& path, std::uint64_t number) {
        writeFile(path, withId(idOf(number)).bytes());
    }

    static std::uint64_t idOf(std::uint64_t number) { return 0x8000000000000000u + number; }

    /// First word of the locator of such a preset; the second is the number.
    static constexpr std::uint32_t idSelector = 0x80000000u;

    /// A record that is told from others by its values and its name.
    static QMGenericPreset record(const std::string& name, double value) {
        QMGenericPreset preset;
        preset.name = name;
        preset.manufacturerCode = code("QML ");
        preset.productCode = code("BRLT");
        preset.values = {{code("afre"), value}, {code("gain"), -3.5}};
        return preset;
    }

    [[nodiscard]] std::vector<std::string> listedNames() const {
        std::vector<std::string> names;
        for (std::size_t i = 0; i < manager.numPresets(); ++i)
            names.push_back(manager.presetAtPosition(i)->displayName());
        return names;
    }

    [[nodiscard]] std::vector<std::string> breadcrumbs() const {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < manager.numPresets(); ++i)
            texts.push_back(manager.presetAtPosition(i)->breadcrumb());
        return texts;
    }
};

using Names = std::vector<std::string>;
