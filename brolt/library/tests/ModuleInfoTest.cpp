// SPDX-License-Identifier: GPL-3.0-or-later
// The bundle's description of itself, which hosts read instead of loading the library: it must say
// what the library says.
#include "brolt/library/tests/support/LoadedLibrary.h"

#include <gtest/gtest.h>
#include <public.sdk/source/vst/moduleinfo/moduleinfoparser.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace {

Steinberg::ModuleInfo readModuleInfo() {
    const std::filesystem::path file =
        std::filesystem::path(LoadedLibrary::bundlePath()) / "Contents/Resources/moduleinfo.json";
    std::ifstream stream(file, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    std::ostringstream complaints;
    const auto info = Steinberg::ModuleInfoLib::parseJson(text, &complaints);
    EXPECT_TRUE(info) << file << ": " << complaints.str();
    return info.value_or(Steinberg::ModuleInfo{});
}

} // namespace

TEST(ModuleInfo, namesProductVersionAndMaker) {
    const Steinberg::ModuleInfo info = readModuleInfo();
    EXPECT_EQ(info.name, "QMBrolt");
    EXPECT_EQ(info.version, "4.0.2.157");
    EXPECT_EQ(info.factoryInfo.vendor, "Quolm");
    EXPECT_EQ(info.factoryInfo.url, LoadedLibrary::shared().factory().info().url());
    EXPECT_EQ(info.factoryInfo.email, LoadedLibrary::shared().factory().info().email());
    EXPECT_EQ(info.factoryInfo.flags, 0x10);
}

TEST(ModuleInfo, describesTheClassesOfTheFactory) {
    const Steinberg::ModuleInfo info = readModuleInfo();
    const auto classes = LoadedLibrary::shared().factory().classInfos();
    ASSERT_EQ(info.classes.size(), classes.size());
    for (std::size_t i = 0; i < classes.size(); ++i) {
        EXPECT_EQ(info.classes[i].cid, classes[i].ID().toString());
        EXPECT_EQ(info.classes[i].category, classes[i].category());
        EXPECT_EQ(info.classes[i].name, classes[i].name());
        EXPECT_EQ(info.classes[i].vendor, classes[i].vendor());
        EXPECT_EQ(info.classes[i].version, classes[i].version());
        EXPECT_EQ(info.classes[i].sdkVersion, classes[i].sdkVersion());
        EXPECT_EQ(info.classes[i].subCategories, classes[i].subCategories());
        EXPECT_EQ(info.classes[i].flags, classes[i].classFlags());
        EXPECT_EQ(info.classes[i].cardinality, classes[i].cardinality());
    }
}

TEST(ModuleInfo, namesTheSameOldClassesAsTheCompatibilityClass) {
    const Steinberg::ModuleInfo info = readModuleInfo();
    ASSERT_EQ(info.compatibility.size(), 1U);
    EXPECT_EQ(info.compatibility[0].newCID, "565354514D626C716D2062726F6C7400");
    EXPECT_EQ(info.compatibility[0].oldCID,
              std::vector<std::string>{"565354514D626C716D2062726F6C7400"});
}
