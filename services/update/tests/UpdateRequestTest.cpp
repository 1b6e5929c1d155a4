// SPDX-License-Identifier: GPL-3.0-or-later
// The fields that the maker's service is sent, word by word.
#include "services/update/UpdateRequest.h"

#include <gtest/gtest.h>

#include <string_view>

using QM::PlugInInterface;
using QM::UpdateParameters;

namespace {

const QM::MachineFacts machine = {"Windows 11", 32768, 16, 3792};

} // namespace

TEST(UpdateRequest, HasItsFieldsInTheOrderTheServiceKnows) {
    const UpdateParameters expected = {
        {"request", "versioncheck"},
        {"product", "Brolt"},
        {"version", "CUR_VERS"},
        {"build", "CUR_BUILD"},
        {"64bit", "YES"},
        {"OS", "Windows 11"},
        {"mem", "32768"},
        {"cpus", "16"},
        {"cpuspeed", "3792"},
        {"os_platform", "win"},
        {"plugin_platform", "vst3"},
    };
    EXPECT_EQ(QM::versionCheckParameters("Brolt", machine, PlugInInterface::vst3), expected);
}

TEST(UpdateRequest, WithoutAProductAsksForTessaly) {
    const UpdateParameters parameters =
        QM::versionCheckParameters("", machine, PlugInInterface::vst3);
    EXPECT_EQ(parameters.at(1), (QM::UpdateParameter{"product", "Tessaly"}));
    EXPECT_EQ(parameters.size(), 11U);
}

TEST(UpdateRequest, TellsTheInterface) {
    const auto told = [](PlugInInterface plugInInterface) {
        return QM::versionCheckParameters("Brolt", machine, plugInInterface).back();
    };
    EXPECT_EQ(told(PlugInInterface::vst2), (QM::UpdateParameter{"plugin_platform", "vst2"}));
    EXPECT_EQ(told(PlugInInterface::aax), (QM::UpdateParameter{"plugin_platform", "aax"}));
}

TEST(UpdateRequest, GoesToTheMakersDomainEncrypted) {
    EXPECT_TRUE(std::string_view(QM::updateServiceAddress).starts_with("https://quolm.example/"));
}

TEST(PlugInInterface, IsVst3UntilAnEntryPointSaysOtherwise) {
    EXPECT_EQ(QM::loadedInterface(), PlugInInterface::vst3);
    QM::setLoadedInterface(PlugInInterface::aax);
    EXPECT_EQ(QM::loadedInterface(), PlugInInterface::aax);
    QM::setLoadedInterface(PlugInInterface::vst3);
    EXPECT_EQ(QM::loadedInterface(), PlugInInterface::vst3);
}
