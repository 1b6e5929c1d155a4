// SPDX-License-Identifier: GPL-3.0-or-later
// The environment's registry of types.
#include "QMShell/hosting/NoxPlugInEnvironment.h"
#include "plugin-model/tests/TestPlugInModel.h"

#include <gtest/gtest.h>

namespace {

constexpr FourCharCode maker = fourCharCode("TMkr");
constexpr FourCharCode otherMaker = fourCharCode("Othr");

class OtherGroup : public TestTypeGroup {
public:
    using TestTypeGroup::TestTypeGroup;

    [[nodiscard]] FourCharCode manufacturerCode() const override { return otherMaker; }
};

/// A group that has lost its types.
class EmptyGroup : public TestTypeGroup {
public:
    using TestTypeGroup::TestTypeGroup;

    [[nodiscard]] std::int32_t typeCount() const override { return 0; }
};

/// A type whose registration answers something.
class AnsweringType : public TestType {
public:
    using TestType::TestType;

    std::int32_t setGlobalIndex(std::int32_t index) override {
        TestType::setGlobalIndex(index);
        return 100 + index;
    }
};

class AnsweringGroup : public TestTypeGroup {
public:
    using TestTypeGroup::TestTypeGroup;

protected:
    std::unique_ptr<INoxPlugInType> createType(FourCharCode code) override {
        return std::make_unique<AnsweringType>(*this, environment(), code, TestTypeKind::complete);
    }
};

class EnvironmentTypes : public ::testing::Test {
protected:
    NoxPlugInEnvironment environment;
    TestTypeGroup group{&environment};
    OtherGroup other{&environment};
};

} // namespace

TEST_F(EnvironmentTypes, thereAreNoneAtFirst) {
    EXPECT_EQ(environment.typeCount(), 0u);
    EXPECT_EQ(environment.typeAt(0), nullptr);
    EXPECT_EQ(environment.findType(maker, fourCharCode("TST1")), nullptr);
}

TEST_F(EnvironmentTypes, areCountedThroughAllGroups) {
    EXPECT_EQ(environment.registerTypeGroup(group), 0);
    EXPECT_EQ(environment.registerTypeGroup(other), 0);
    ASSERT_EQ(environment.typeCount(), 4u);
    EXPECT_EQ(environment.typeAt(0), group.typeOfIndex(0));
    EXPECT_EQ(environment.typeAt(1), group.typeOfIndex(1));
    EXPECT_EQ(environment.typeAt(2), other.typeOfIndex(0));
    EXPECT_EQ(environment.typeAt(3), other.typeOfIndex(1));
    EXPECT_EQ(environment.typeAt(4), nullptr);
    EXPECT_EQ(environment.typeAt(0xFFFFFFFFu), nullptr);
    for (std::uint32_t i = 0; i < 4; ++i)
        EXPECT_EQ(environment.typeAt(i)->globalIndex(), static_cast<std::int32_t>(i));
}

TEST_F(EnvironmentTypes, registrationAnswersWhatTheLastTypeAnswers) {
    environment.registerTypeGroup(group);
    AnsweringGroup answering(&environment);
    EXPECT_EQ(environment.registerTypeGroup(answering), 103);
    EmptyGroup empty(&environment);
    EXPECT_EQ(environment.registerTypeGroup(empty), 0);
    EXPECT_EQ(environment.typeCount(), 4u);
}

TEST_F(EnvironmentTypes, areFoundByGroupAndType) {
    environment.registerTypeGroup(group);
    environment.registerTypeGroup(other);
    EXPECT_EQ(environment.findType(maker, fourCharCode("TST1")), group.typeOfIndex(0));
    EXPECT_EQ(environment.findType(maker, fourCharCode("TST2")), group.typeOfIndex(1));
    EXPECT_EQ(environment.findType(otherMaker, fourCharCode("TST2")), other.typeOfIndex(1));
    EXPECT_EQ(environment.findType(otherMaker, fourCharCode("TST3")), nullptr);
    EXPECT_EQ(environment.findType(fourCharCode("none"), fourCharCode("TST1")), nullptr);
}

TEST_F(EnvironmentTypes, theFirstTypeThatKnowsTheCodeIsAskedForTheEntry) {
    TestTypeGroup again(&environment); // same maker, same codes
    environment.registerTypeGroup(group);
    environment.registerTypeGroup(again);
    EXPECT_EQ(environment.findType(maker, fourCharCode("TST2")), group.typeOfIndex(1));
}

TEST_F(EnvironmentTypes, manyMoreThanExpectedFit) {
    std::vector<std::unique_ptr<TestTypeGroup>> groups;
    for (int i = 0; i < 100; ++i) {
        groups.push_back(std::make_unique<TestTypeGroup>(&environment));
        environment.registerTypeGroup(*groups.back());
    }
    EXPECT_EQ(environment.typeCount(), 200u);
    EXPECT_EQ(environment.typeAt(199), groups.back()->typeOfIndex(1));
    EXPECT_EQ(groups.back()->typeOfIndex(1)->globalIndex(), 199);
}
