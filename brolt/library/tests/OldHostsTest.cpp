// SPDX-License-Identifier: GPL-3.0-or-later
// The smaller interfaces: what some hosts ask and most do not.
#include "brolt/library/tests/support/LibraryInstance.h"

#include <pluginterfaces/gui/iplugview.h>
#include <pluginterfaces/vst/ivstunits.h>

using Steinberg::kResultFalse;
using Steinberg::kResultOk;

namespace {

class SmallInterfaces : public ::testing::Test {
protected:
    LibraryInstance instance;
};

} // namespace

TEST_F(SmallInterfaces, makeNoViewOfAnyNameButEditor) {
    for (const char* name : {"Editor", "", "generic", "editor "})
        EXPECT_EQ(instance.controller().createView(name), nullptr) << name;
    EXPECT_EQ(instance.controller().createView(nullptr), nullptr);
}

TEST_F(SmallInterfaces, takeAnyKnobMode) {
    const auto controller = instance.as<Vst::IEditController2>();
    ASSERT_TRUE(controller);
    for (const Vst::KnobMode mode :
         {Vst::kLinearMode, Vst::kRelativCircularMode, Vst::kCircularMode})
        EXPECT_EQ(controller->setKnobMode(mode), kResultOk);
}

TEST_F(SmallInterfaces, openNoHelpAndNoAboutBox) {
    const auto controller = instance.as<Vst::IEditController2>();
    ASSERT_TRUE(controller);
    for (const bool onlyCheck : {true, false}) {
        EXPECT_EQ(controller->openHelp(onlyCheck), kResultFalse);
        EXPECT_EQ(controller->openAboutBox(onlyCheck), kResultFalse);
    }
}

TEST_F(SmallInterfaces, haveNoUnitButTheRootAndNoPrograms) {
    const auto units = instance.as<Vst::IUnitInfo>();
    ASSERT_TRUE(units);
    for (Steinberg::int32 i = 0; i < units->getUnitCount(); ++i) {
        Vst::UnitInfo info{};
        ASSERT_EQ(units->getUnitInfo(i, info), kResultOk);
        EXPECT_EQ(info.id, Vst::kRootUnitId);
        EXPECT_EQ(info.parentUnitId, Vst::kNoParentUnitId);
        EXPECT_EQ(info.programListId, Vst::kNoProgramListId);
    }
    Vst::UnitInfo unit{};
    EXPECT_NE(units->getUnitInfo(-1, unit), kResultOk);
    EXPECT_NE(units->getUnitInfo(1, unit), kResultOk);
    EXPECT_EQ(units->getSelectedUnit(), Vst::kRootUnitId);
    EXPECT_EQ(units->getProgramListCount(), 0);
    Vst::ProgramListInfo list{};
    EXPECT_NE(units->getProgramListInfo(0, list), kResultOk);
    EXPECT_NE(units->getProgramListInfo(-1, list), kResultOk);
    Vst::String128 name{};
    EXPECT_NE(units->getProgramName(0, 0, name), kResultOk);
}

TEST_F(SmallInterfaces, needNothingOfTheProcessContext) {
    const auto requirements = instance.as<Vst::IProcessContextRequirements>();
    ASSERT_TRUE(requirements);
    EXPECT_EQ(requirements->getProcessContextRequirements(), 0U);
}

TEST_F(SmallInterfaces, areNoneThatNobodyKnows) {
    const Steinberg::FUID stranger(1, 2, 3, 4);
    int marker = 0;
    void* object = &marker;
    EXPECT_EQ(instance.component().queryInterface(stranger, &object), Steinberg::kNoInterface);
    EXPECT_EQ(object, nullptr);
}
