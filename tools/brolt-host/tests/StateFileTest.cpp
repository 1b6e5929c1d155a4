// SPDX-License-Identifier: GPL-3.0-or-later
// Settings in files: every form found out, written, read back, refused when damaged.

#include "tools/brolt-host/state/StateFile.h"

#include "tools/brolt-host/ProductModel.h"
#include "tools/brolt-host/state/InstanceSettings.h"
#include "tools/brolt-host/state/PresetReport.h"
#include "tools/brolt-host/tests/HostTestKit.h"

#include <gtest/gtest.h>

#include <random>

namespace {

QMGenericPreset someRecord() {
    QMGenericPreset record;
    record.name = "Kick \xE3\x81\x82";
    record.manufacturerCode = fourCharCode("QML ");
    record.productCode = fourCharCode("BRLT");
    record.values = {
        {fourCharCode("afre"), 150.0}, {fourCharCode("mbyp"), 1.0}, {fourCharCode("what"), 7.0}};
    record.uniqueId = 0x8000000000001234u;
    record.extension = {{"mBlendX", 0.25}, {"text", "\xC3\xA4"}};
    return record;
}

std::string textOf(const std::vector<std::byte>& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

class StateFiles : public testing::Test {
protected:
    [[nodiscard]] std::filesystem::path write(const std::string& name, StateForm form) const {
        return folder.write(name, textOf(encodeState(someRecord(), form)));
    }

    TemporaryFolder folder;
};

const std::array allForms{StateForm::preset, StateForm::vst3, StateForm::vst2, StateForm::aax};

} // namespace

TEST_F(StateFiles, everyFormIsFoundOutAndHoldsTheWholeRecord) {
    for (const StateForm form : allForms) {
        const StateFile read = readStateFile(write("state", form));
        const QMGenericPreset expected = someRecord();
        EXPECT_EQ(read.form, form);
        EXPECT_EQ(read.record.name, expected.name);
        EXPECT_EQ(read.record.values, expected.values);
        EXPECT_EQ(read.record.uniqueId, expected.uniqueId);
        EXPECT_EQ(read.record.extension, expected.extension);
    }
}

TEST_F(StateFiles, everyFormComesBackToTheSameBytes) {
    for (const StateForm form : allForms) {
        const std::filesystem::path file = folder / "converted";
        writeStateFile(file, readStateFile(write("state", form)).record, StateForm::preset);
        EXPECT_EQ(bytesOf(file), textOf(encodeState(someRecord(), StateForm::preset)))
            << stateFormName(form);
    }
}

TEST_F(StateFiles, aCutOffFileIsRefusedAtEveryByteWithItsNameAndTheReason) {
    for (const StateForm form : allForms) {
        const std::string whole = textOf(encodeState(someRecord(), form));
        // Hosts compare the sizes of VST 2 chunks: their last bytes are surplus.
        const std::size_t content = whole.size() - (form == StateForm::vst2 ? 20 : 0);
        for (std::size_t length = 0; length < content; ++length) {
            const auto file = folder.write("cut.state", whole.substr(0, length));
            const std::string error = errorOf([&] { (void)readStateFile(file); });
            EXPECT_NE(error.find("cut.state: is "), std::string::npos)
                << stateFormName(form) << " cut to " << length << ": " << error;
        }
    }
}

TEST_F(StateFiles, randomBytesAreRefused) {
    std::mt19937 random(5);
    for (int i = 0; i < 200; ++i) {
        std::string bytes(random() % 400, '\0');
        for (char& c : bytes)
            c = static_cast<char>(random());
        const auto file = folder.write("noise", bytes);
        EXPECT_NE(errorOf([&] { (void)readStateFile(file); }), "no error");
    }
}

TEST_F(StateFiles, aNegativeLengthIsRefusedLikeAnyOther) {
    std::string bytes = textOf(encodeState(someRecord(), StateForm::vst3));
    bytes[7] = '\xFF';
    const auto file = folder.write("negative", bytes);
    EXPECT_NE(errorOf([&] { (void)readStateFile(file); }).find("is a damaged VST3 state"),
              std::string::npos);
}

TEST_F(StateFiles, aSavedPresetHasItsFilesNameAndAnIdentifierThatStays) {
    const std::filesystem::path file = folder / "Warm Sub.qmpreset";
    QMGenericPreset record = someRecord();
    record.uniqueId = 0;
    writePresetFile(file, record);
    const QMGenericPreset first = readStateFile(file).record;
    EXPECT_EQ(first.name, "Warm Sub");
    EXPECT_NE(first.uniqueId & 0x8000000000000000u, 0u);
    record.values[fourCharCode("afre")] = 99.0;
    writePresetFile(file, record);
    const QMGenericPreset second = readStateFile(file).record;
    EXPECT_EQ(second.uniqueId, first.uniqueId);
    EXPECT_EQ(second.values.at(fourCharCode("afre")), 99.0);
}

TEST_F(StateFiles, settingsOfAnotherProductAreRefusedBeforeAnythingIsRendered) {
    QMGenericPreset other = someRecord();
    other.productCode = fourCharCode("ELSE");
    writeStateFile(folder / "other.qmpreset", other, StateForm::preset);
    RenderStateOptions options;
    options.preset = folder / "other.qmpreset";
    EXPECT_NE(errorOf([&] {
                  (void)readRecords(options);
              }).find("other.qmpreset: holds settings of another product"),
              std::string::npos);
}

TEST_F(StateFiles, anExtensionOfTheWrongTypeIsRefusedWithTheReason) {
    QMGenericPreset broken = someRecord();
    broken.extension = {{"mSnapshots", "x"}};
    writeStateFile(folder / "broken.qmpreset", broken, StateForm::preset);
    RenderStateOptions options;
    options.state = folder / "broken.qmpreset";
    EXPECT_NE(
        errorOf([&] { (void)readRecords(options); }).find("type must be array, but is string"),
        std::string::npos);
}

TEST_F(StateFiles, aReportShowsHeadValuesAndExtension) {
    ProductModel product;
    const std::string report =
        presetReport({StateForm::preset, someRecord()}, product.parameters());
    for (const char* line :
         {"Name        Kick \xE3\x81\x82\n", "Maker       'QML '\n",
          "Identifier  0x8000000000001234\n", "'afre'  Osc 1 Attack Frequency  150    150 Hz\n",
          "'what'  (unknown)               7", "  \"mBlendX\": 0.25"})
        EXPECT_NE(report.find(line), std::string::npos) << line << " is not in\n" << report;
}

TEST_F(StateFiles, aReportOfHostileTextsStaysPrintable) {
    ProductModel product;
    QMGenericPreset hostile = someRecord();
    hostile.name = "a\x1B[2Jb";
    hostile.variantCode = 0x01020304;
    hostile.extension = {{"key", "\xFF\xFE"}};
    const std::string report = presetReport({StateForm::preset, hostile}, product.parameters());
    EXPECT_NE(report.find("a?[2Jb"), std::string::npos);
    EXPECT_NE(report.find("0x01020304"), std::string::npos);
    EXPECT_EQ(report.find('\x1B'), std::string::npos);
}
