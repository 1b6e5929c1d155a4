// SPDX-License-Identifier: GPL-3.0-or-later
// Who the two types are for every host format: the whole table, written out.
#include "brolt/model/QMBrolt_PlugIn.h"
#include "brolt/model/QMBrolt_PlugInTypeGroup.h"
#include "plugin-model/NoxPlugInType.h"
#include "plugin-model/tests/StubEnvironment.h"
#include "services/tests/LogCapture.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

struct TypeRow {
    std::int32_t groupIndex;
    std::int32_t typeIndex;
    const char* code;
    std::vector<std::int32_t> inputCodes;
    std::vector<std::int32_t> outputCodes;
    const char* fullName;
    std::array<FourCharCode, 3> aaxIDs;
    std::vector<std::string> inputNames;
};

const std::array<TypeRow, 2> typeRows{{
    {0, 1, "BLT1", {0}, {1}, "Brolt (m/m)", {0x4E617431, 0x41535246, 0x44737031}, {"Mono"}},
    {1,
     2,
     "BLT2",
     {1, 2},
     {3, 3},
     "Brolt (s/s)",
     {0x4E617432, 0x41535246, 0x44737032},
     {"Left", "Right"}},
}};

class BroltTypeTable : public ::testing::TestWithParam<TypeRow> {
protected:
    StubEnvironment environment;
    QMBrolt_PlugInTypeGroup group{&environment};
    const TypeRow& row = GetParam();
    NoxPlugInType& type = dynamic_cast<NoxPlugInType&>(*group.typeOfIndex(row.groupIndex));
};

INSTANTIATE_TEST_SUITE_P(BothTypes, BroltTypeTable, ::testing::ValuesIn(typeRows),
                         [](const ::testing::TestParamInfo<TypeRow>& row) {
                             return std::string(row.param.code);
                         });

} // namespace

TEST_P(BroltTypeTable, namesTheVariant) {
    EXPECT_EQ(type.typeIndex(), row.typeIndex);
    EXPECT_EQ(type.codeText(), row.code);
    EXPECT_EQ(fourCharText(type.typeCode()), row.code);
    EXPECT_EQ(type.fullName(), row.fullName);
    EXPECT_EQ(type.group(), &group);
    EXPECT_EQ(type.environment(), &environment);
}

TEST_P(BroltTypeTable, namesTheProduct) {
    EXPECT_EQ(type.name(), "Brolt");
    EXPECT_EQ(type.shortName(), "Brolt");
    EXPECT_EQ(type.description(), "Brolt");
    EXPECT_EQ(type.displayNameWithMaker(), "QM Brolt");
    EXPECT_EQ(type.bundleName(), "QMBrolt");
    EXPECT_EQ(type.productCodeText(), "QMBRLT");
    EXPECT_EQ(type.productName(), "Brolt");
    EXPECT_EQ(type.categoryText(), "QMFree");
    EXPECT_EQ(type.hostFamilyText(), "QMShell");
    EXPECT_EQ(type.namePrefix(), "[v4] ");
    EXPECT_EQ(type.alternativeNames(), (std::vector<std::string>{"QM Brolt", "QMBrolt", "Brolt"}));
    EXPECT_EQ(type.manufacturerName(), "Quolm");
    EXPECT_EQ(type.editorClassName(), "QMBrolt UI");
    EXPECT_EQ(type.categoryBits(), 2049u);
    EXPECT_EQ(type.groupNames(), group.names());
}

TEST_P(BroltTypeTable, hasItsCodesForEveryFormat) {
    EXPECT_EQ(type.vst3ClassID(), "565354514D626C716D2062726F6C7400");
    EXPECT_EQ(type.manufacturerCode(), 0x514D4C20u); // 'QML '
    EXPECT_EQ(type.groupManufacturerCode(), 0x514D4C20u);
    EXPECT_EQ(type.productCode(), 0x42524C54u); // 'BRLT'
    EXPECT_EQ(type.aaxTypeIDs().native, row.aaxIDs[0]);
    EXPECT_EQ(type.aaxTypeIDs().audioSuite, row.aaxIDs[1]);
    EXPECT_EQ(type.aaxTypeIDs().dsp, row.aaxIDs[2]);
}

// The class takes over from a VST 2 effect by a fixed scheme: "VST", its identifier, its name in
// lower case up to nine bytes.
TEST_P(BroltTypeTable, theVst3ClassIsMadeOfTheVst2IdentifierAndName) {
    const std::string bytes = std::string("VSTQMblqm brolt") + '\0';
    std::string expected;
    for (const char byte : bytes)
        expected += printed("%02X", static_cast<unsigned char>(byte));
    EXPECT_EQ(expected.size(), 32u);
    EXPECT_EQ(type.vst3ClassID(), expected);
}

TEST_P(BroltTypeTable, theAaxBundleIsAReverseDomainNameThatEndsInTheBundleName) {
    EXPECT_EQ(type.aaxBundleID(), "example.quolm.QMBrolt");
}

TEST_P(BroltTypeTable, hasItsChannels) {
    const auto count = static_cast<std::int32_t>(row.inputCodes.size());
    EXPECT_EQ(type.inputCount(), count);
    EXPECT_EQ(type.outputCount(), count);
    for (std::int32_t i = 0; i < count; ++i) {
        const auto position = static_cast<std::size_t>(i);
        EXPECT_EQ(type.inputConfigurationCode(i), row.inputCodes[position]);
        EXPECT_EQ(type.outputConfigurationCode(i), row.outputCodes[position]);
        EXPECT_EQ(type.inputChannelName(i), row.inputNames[position]);
        EXPECT_EQ(type.outputChannelName(i), row.inputNames[position]);
    }
    EXPECT_EQ(type.inputConfigurationCode(count), 0);
    EXPECT_EQ(type.outputConfigurationCode(-1), 0);
    for (std::int32_t in = 0; in <= 3; ++in) {
        for (std::int32_t out = 0; out <= 3; ++out)
            EXPECT_EQ(type.supportsIOConfiguration(in, out), in == count && out == count);
    }
}

TEST_P(BroltTypeTable, hasItsParametersAndMeters) {
    EXPECT_EQ(type.parameterCount(), 15);
    EXPECT_EQ(type.meterCount(), row.typeIndex + 1);
    EXPECT_EQ(type.bypassParameterIndex(), 0);
    EXPECT_TRUE(type.constructedFlag());
    ASSERT_NE(type.parameterSet(), nullptr);
    EXPECT_TRUE(type.parameterSet()->acceptsPair(0x514D4C20u, 0x42524C54u));
}

TEST_P(BroltTypeTable, hasFiveHelpLinks) {
    const std::vector<NoxHelpLink> links = type.helpLinks();
    const std::array<NoxHelpLink, 5> expected{{
        {"Quolm Website", "qmsite", 0, ""},
        {"Quolm Tech Support", "qmsupport", 0, ""},
        {"Quolm FAQs", "qmfaq", 0, ""},
        {"Brolt Product Page", "prod", 4, ""},
        {"Brolt Users Guide [PDF]", "um", 8, ""},
    }};
    ASSERT_EQ(links.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(links[i].title, expected[i].title);
        EXPECT_EQ(links[i].key, expected[i].key);
        EXPECT_EQ(links[i].kind, expected[i].kind) << expected[i].title;
        const std::string start = "https://quolm.example/l/?l=" + expected[i].key;
        EXPECT_EQ(links[i].address.substr(0, start.size()), start);
        // Only the product's own pages say which product.
        EXPECT_EQ(links[i].address == start, expected[i].kind == 0) << links[i].address;
    }
    EXPECT_EQ(links[3].address, "https://quolm.example/l/?l=prod&p=QMBRLT");
    EXPECT_EQ(links[4].address, "https://quolm.example/l/?l=um&p=QMBRLT");
    EXPECT_EQ(type.helpPanelLogo(), "QMLogo_128x128ForDark.png");
}

TEST_P(BroltTypeTable, hasNoImplementationForAnyInstructionSet) {
    for (const std::int32_t isa : {0, 14, 15}) {
        const LogCapture capture(QM::LogLevel::error);
        EXPECT_EQ(type.QueryImplementation(isa), nullptr);
        EXPECT_EQ(capture.messages(),
                  printed("Error: NoxPlugInType::QueryImplementation for isa %d in 'Brolt' not "
                          "implemented!\n",
                          isa));
    }
}

TEST_P(BroltTypeTable, namesItsFiles) {
    EXPECT_EQ(type.dspObjectFileName(10), "QMBrolt_mac.dspobj");
    EXPECT_EQ(type.dspObjectFileName(11), "QMBrolt_3d.dspobj");
    EXPECT_EQ(NoxPlugInType::metadataFileName(type.typeCode()),
              std::string("metadata/") + row.code + ".pluginmd");
}

TEST_P(BroltTypeTable, createsItsInstances) {
    const std::unique_ptr<INoxPlugIn> plugIn = type.createAndRecordInstance();
    const auto* product = dynamic_cast<const QMBrolt_PlugIn*>(plugIn.get());
    ASSERT_NE(product, nullptr);
    EXPECT_EQ(product->type(), &type);
    EXPECT_EQ(product->environment(), &environment);
    EXPECT_EQ(product->processingHost(), nullptr);
    EXPECT_EQ(product->processingData(), nullptr);
    EXPECT_EQ(product->displayName(), "QM Brolt");
    EXPECT_EQ(product->shortName(), "Brolt");
    EXPECT_EQ(product->description(), "Brolt");
    EXPECT_EQ(product->inputCount(), type.inputCount());
    EXPECT_EQ(product->outputCount(), type.outputCount());
    EXPECT_EQ(product->parameterCount(), 15);
    EXPECT_TRUE(product->isBypassParameterIndex(0));
    EXPECT_FALSE(product->isBypassParameterIndex(1));
    EXPECT_EQ(type.instanceAt(0), plugIn.get());
}

TEST(BroltTypeGroup, hasTwoTypesAndItsMaker) {
    QMBrolt_PlugInTypeGroup group(nullptr);
    EXPECT_EQ(group.typeCount(), 2);
    EXPECT_EQ(group.manufacturerCode(), 0x514D4C20u); // 'QML '
    EXPECT_EQ(group.manufacturerName(), "Quolm");
    EXPECT_EQ(group.names(), std::vector<std::string>{"Brolt"});
}

TEST(BroltTypeGroup, knowsItsCodesAndNoOthers) {
    QMBrolt_PlugInTypeGroup group(nullptr);
    EXPECT_EQ(group.typeCodeOfIndex(0), 0x424C5431u); // 'BLT1'
    EXPECT_EQ(group.typeCodeOfIndex(1), 0x424C5432u);
    EXPECT_EQ(group.typeCodeOfIndex(2), 0u);
    EXPECT_EQ(group.typeCodeOfIndex(-1), 0u);
    EXPECT_EQ(group.indexOfTypeCode(0x424C5431u), 0);
    EXPECT_EQ(group.indexOfTypeCode(0x424C5432u), 1);
    EXPECT_EQ(group.indexOfTypeCode(0x424C5433u), -1); // 'BLT3'
    EXPECT_EQ(group.indexOfTypeCode(0), -1);
    EXPECT_EQ(group.typeOfIndex(2), nullptr);
    EXPECT_EQ(group.typeOfIndex(-1), nullptr);
}

TEST(BroltTypeGroup, makesEachTypeOnce) {
    QMBrolt_PlugInTypeGroup group(nullptr);
    INoxPlugInType* stereo = group.typeOfIndex(1);
    INoxPlugInType* mono = group.typeOfIndex(0);
    EXPECT_NE(stereo, mono);
    EXPECT_EQ(group.typeOfIndex(1), stereo);
    EXPECT_EQ(group.typeOfIndex(0), mono);
}
