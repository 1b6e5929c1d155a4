// SPDX-License-Identifier: GPL-3.0-or-later
// The base of types and groups: fields and their defaults, implementations, file names.
#include "plugin-model/tests/MockEnvironment.h"
#include "plugin-model/tests/TestPlugInModel.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(NoxPlugInTypeGroup, answersNeutrallyOutOfRange) {
    TestTypeGroup group;
    EXPECT_EQ(group.typeCount(), 2);
    EXPECT_EQ(group.typeCodeOfIndex(0), fourCharCode("TST1"));
    EXPECT_EQ(group.typeCodeOfIndex(1), fourCharCode("TST2"));
    EXPECT_EQ(group.typeCodeOfIndex(2), 0u);
    EXPECT_EQ(group.typeCodeOfIndex(-1), 0u);
    EXPECT_EQ(group.indexOfTypeCode(fourCharCode("TST2")), 1);
    EXPECT_EQ(group.indexOfTypeCode(fourCharCode("TST3")), -1);
    EXPECT_EQ(group.indexOfTypeCode(0), -1);
    EXPECT_EQ(group.typeOfIndex(2), nullptr);
    EXPECT_EQ(group.typeOfIndex(-1), nullptr);
}

TEST(NoxPlugInTypeGroup, createsEachTypeOnFirstRequestAndKeepsIt) {
    NiceEnvironment environment;
    TestTypeGroup group(&environment);
    EXPECT_EQ(group.typesCreated, 0);
    INoxPlugInType* second = group.typeOfIndex(1);
    EXPECT_EQ(group.typesCreated, 1);
    EXPECT_EQ(group.typeOfIndex(1), second);
    EXPECT_EQ(group.typesCreated, 1);
    EXPECT_NE(group.typeOfIndex(0), second);
    EXPECT_EQ(group.typesCreated, 2);
    EXPECT_EQ(second->group(), &group);
    EXPECT_EQ(second->environment(), &environment);
    EXPECT_EQ(second->typeCode(), fourCharCode("TST2"));
}

TEST(NoxPlugInType, thatNobodyFilledIsUndefined) {
    TestTypeGroup group;
    const TestType& type = group.testType();
    EXPECT_EQ(type.name(), "Undefined Plugin");
    EXPECT_EQ(type.fullName(), "Undefined Plugin");
    EXPECT_EQ(type.shortName(), "Undefined Plugin");
    EXPECT_EQ(type.displayNameWithMaker(), "Undefined Plugin");
    EXPECT_EQ(type.description(), "Undefined Plugin Description");
    EXPECT_EQ(type.categoryText(), "+DSP");
    EXPECT_EQ(type.hostFamilyText(), "+DSP");
    EXPECT_EQ(type.editorClassName(), "");
    EXPECT_EQ(type.categoryBits(), 0u);
    EXPECT_EQ(type.bypassParameterIndex(), -1);
    EXPECT_TRUE(type.helpLinks().empty());
    EXPECT_TRUE(type.alternativeNames().empty());
}

TEST(NoxPlugInType, withoutCodesOfItsOwnAnswersTheGroupsAndTheTypes) {
    TestTypeGroup group;
    const TestType& type = group.testType(1);
    EXPECT_EQ(type.groupManufacturerCode(), fourCharCode("TMkr"));
    EXPECT_EQ(type.manufacturerCode(), fourCharCode("TMkr"));
    EXPECT_EQ(type.productCode(), fourCharCode("TST2"));
    EXPECT_EQ(type.manufacturerName(), "Test Maker");
    EXPECT_EQ(type.groupNames(), (std::vector<std::string>{"One", "Two"}));
    EXPECT_EQ(type.codeText(), "TST2");
}

TEST(NoxPlugInType, answersCodesOfItsOwn) {
    NoxPlugInTypeFields fields;
    fields.manufacturerCode = fourCharCode("Own1");
    fields.productCode = fourCharCode("Own2");
    TestTypeGroup group(nullptr, TestTypeKind::complete, fields);
    EXPECT_EQ(group.testType().manufacturerCode(), fourCharCode("Own1"));
    EXPECT_EQ(group.testType().groupManufacturerCode(), fourCharCode("TMkr"));
    EXPECT_EQ(group.testType().productCode(), fourCharCode("Own2"));
    EXPECT_EQ(group.testType().typeCode(), fourCharCode("TST1"));
}

TEST(NoxPlugInType, configurationCodesBelongToTheChannels) {
    TestTypeGroup group;
    const TestType& type = group.testType();
    EXPECT_EQ(type.inputCount(), 2);
    EXPECT_EQ(type.outputCount(), 3);
    EXPECT_EQ(type.inputConfigurationCode(0), 4);
    EXPECT_EQ(type.inputConfigurationCode(1), 5);
    EXPECT_EQ(type.inputConfigurationCode(2), 0);
    EXPECT_EQ(type.inputConfigurationCode(-1), 0);
    EXPECT_EQ(type.outputConfigurationCode(2), 8);
    EXPECT_EQ(type.outputConfigurationCode(3), 0);
    EXPECT_TRUE(type.supportsIOConfiguration(2, 3));
    EXPECT_FALSE(type.supportsIOConfiguration(3, 2));
    EXPECT_FALSE(type.supportsIOConfiguration(0, 0));
    EXPECT_EQ(type.inputChannelName(0), "Left");
    EXPECT_EQ(type.inputChannelName(1), "Right");
    EXPECT_EQ(type.inputChannelName(2), "");
    EXPECT_EQ(type.inputChannelName(-1), "");
    EXPECT_EQ(type.outputChannelName(3), "");
}

TEST(NoxPlugInType, asksItsSetAndIsNeutralWithoutOne) {
    TestTypeGroup with;
    EXPECT_EQ(with.testType().parameterCount(), 3);
    EXPECT_EQ(with.testType().defaultValue(2), 10.0);
    EXPECT_EQ(with.testType().defaultValue(3), 0.0);
    EXPECT_EQ(with.testType().meterCount(), 2);
    EXPECT_TRUE(with.testType().constructedFlag());
    EXPECT_NE(with.testType().parameterSet(), nullptr);
    EXPECT_NE(with.testType().createParameterValues(), nullptr);

    TestTypeGroup without(nullptr, TestTypeKind::withoutSet);
    EXPECT_EQ(without.testType().parameterCount(), 0);
    EXPECT_EQ(without.testType().defaultValue(0), 0.0);
    EXPECT_EQ(without.testType().meterCount(), 0);
    EXPECT_FALSE(without.testType().constructedFlag());
    EXPECT_EQ(without.testType().parameterSet(), nullptr);
    EXPECT_EQ(without.testType().NoxPlugInType::createParameterValues(), nullptr);
}

TEST(NoxPlugInTypeImplementations, areMadeOnceAndKept) {
    TestTypeGroup group;
    TestType& type = group.testType();
    const LogCapture capture(QM::LogLevel::error);
    INoxPlugInImplementation* made = type.QueryImplementation(3);
    EXPECT_NE(made, nullptr);
    EXPECT_EQ(type.QueryImplementation(3), made);
    EXPECT_EQ(type.implementationsAsked, std::vector<std::int32_t>{3});
    EXPECT_EQ(capture.messages(), "");
}

TEST(NoxPlugInTypeImplementations, thatDoNotExistAreLoggedEveryTime) {
    TestTypeGroup group;
    TestType& type = group.testType();
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_EQ(type.QueryImplementation(14), nullptr);
    EXPECT_EQ(type.QueryImplementation(14), nullptr);
    EXPECT_EQ(type.implementationsAsked, (std::vector<std::int32_t>{14, 14}));
    const std::string line = "Error: NoxPlugInType::QueryImplementation for isa 14 in 'Undefined "
                             "Plugin' not implemented!\n";
    EXPECT_EQ(capture.messages(), line + line);
}

TEST(NoxPlugInTypeImplementations, beyondTheCacheTheFactoryIsNotAsked) {
    TestTypeGroup group;
    TestType& type = group.testType();
    const LogCapture capture(QM::LogLevel::error);
    EXPECT_EQ(type.QueryImplementation(15), nullptr);
    EXPECT_EQ(type.QueryImplementation(-1), nullptr);
    EXPECT_TRUE(type.implementationsAsked.empty());
    EXPECT_EQ(capture.messages(),
              "Error: NoxPlugInType::QueryImplementation for isa 15 in 'Undefined Plugin' not "
              "implemented!\n"
              "Error: NoxPlugInType::QueryImplementation for isa -1 in 'Undefined Plugin' not "
              "implemented!\n");
}

TEST(NoxPlugInTypeFiles, dspObjectsAreNamedByArchitecture) {
    NoxPlugInTypeFields fields;
    fields.bundleName = "Thing";
    TestTypeGroup group(nullptr, TestTypeKind::complete, fields);
    EXPECT_EQ(group.testType().dspObjectFileName(10), "Thing_mac.dspobj");
    EXPECT_EQ(group.testType().dspObjectFileName(11), "Thing_3d.dspobj");
}

TEST(NoxPlugInTypeFiles, anUndefinedArchitectureIsAnException) {
    TestTypeGroup group;
    for (const std::int32_t architecture : {-1, 0, 1, 9, 12, 13, 14, 15}) {
        try {
            (void)group.testType().dspObjectFileName(architecture);
            ADD_FAILURE() << architecture;
        } catch (const std::exception& error) {
            EXPECT_STREQ(error.what(), "Invalid NoxRuntimeArchitecture: RTA is not defined.");
        }
    }
}

TEST(NoxPlugInTypeFiles, metadataIsNamedByTheCode) {
    EXPECT_EQ(NoxPlugInType::metadataFileName(fourCharCode("BLT1")), "metadata/BLT1.pluginmd");
    EXPECT_EQ(NoxPlugInType::metadataFileName(0x41424344u), "metadata/ABCD.pluginmd");
}

TEST(NoxPlugInTypeFiles, theObjectPathIsLookedUpAndCut) {
    NoxPlugInTypeFields fields;
    fields.bundleName = "Thing";
    TestTypeGroup group(nullptr, TestTypeKind::complete, fields);
    NoxPlugInType::setResourcePathLookup(nullptr);
    EXPECT_EQ(group.testType().objectPath(), "");
    NoxPlugInType::setResourcePathLookup([](const std::string& path) { return "/found/" + path; });
    EXPECT_EQ(group.testType().objectPath(), "/found/build/Thing");
    NoxPlugInType::setResourcePathLookup([](const std::string&) { return std::string(2000, 'x'); });
    EXPECT_EQ(group.testType().objectPath(), std::string(1024, 'x'));
    NoxPlugInType::setResourcePathLookup(nullptr);
}

TEST(NoxPlugInTypeRegistration, keepsTheGlobalIndexAndResolvesCodesInItsGroup) {
    TestTypeGroup group;
    TestType& type = group.testType();
    EXPECT_EQ(type.globalIndex(), -1);
    EXPECT_EQ(type.setGlobalIndex(5), 0);
    EXPECT_EQ(type.globalIndex(), 5);
    EXPECT_EQ(type.resolveTypeCode(fourCharCode("TST2")), 1);
    EXPECT_EQ(type.resolveTypeCode(fourCharCode("TST9")), -1);
    EXPECT_EQ(type.typeAtEntry(1), &group.testType(1));
    EXPECT_EQ(type.typeAtEntry(2), nullptr);
}
