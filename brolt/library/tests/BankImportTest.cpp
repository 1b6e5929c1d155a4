// SPDX-License-Identifier: GPL-3.0-or-later
// Projects of the VST 2 plug-in: hosts that put this one in its place hand its bank over as a
// state, and learn of each value as of an edit.
#include "brolt/library/tests/support/EditRecorder.h"
#include "brolt/library/tests/support/HostStream.h"
#include "brolt/library/tests/support/LibraryInstance.h"
#include "brolt/library/tests/support/StateFixtures.h"

#include <algorithm>

using Steinberg::kResultFalse;
using Steinberg::kResultOk;

namespace {

class BankImport : public ::testing::Test {
protected:
    LibraryInstance instance;
    EditRecorder host;

    BankImport() { instance.controller().setComponentHandler(&host); }

    ~BankImport() override { instance.controller().setComponentHandler(nullptr); }

    /// Lines that begin so.
    std::vector<std::string> told(const std::string& beginning) {
        std::vector<std::string> found;
        std::copy_if(host.lines.begin(), host.lines.end(), std::back_inserter(found),
                     [&](const std::string& line) { return line.starts_with(beginning); });
        return found;
    }

    void expectEntries() {
        EXPECT_NEAR(instance.plain("gain"), 6.0, 1e-9);
        EXPECT_EQ(instance.plain("osc1"), 0.0);
        EXPECT_NEAR(instance.plain("afre"), 220.0, 1e-9);
    }

    void expectDeclined(const Bytes& bytes) {
        const Bytes before = instance.state();
        EXPECT_EQ(instance.restore(bytes), kResultFalse);
        EXPECT_EQ(instance.state(), before);
        EXPECT_EQ(host.lines, std::vector<std::string>());
    }
};

} // namespace

TEST_F(BankImport, takesTheEntriesAndNotTheRecord) {
    EXPECT_EQ(instance.restore(savedBank(savedChunk())), kResultOk);
    expectEntries();
    EXPECT_EQ(instance.plain("osc2"), 1.0); // the record has it off
    EXPECT_NEAR(instance.plain("wetd"), 100.0, 1e-9);
}

TEST_F(BankImport, tellsTheHostOfEachEntryAsAnEdit) {
    ASSERT_EQ(instance.restore(savedBank(savedChunk())), kResultOk);
    // 6 dB of -24..24, off, and ln 220 / ln 440; in the order of the entries.
    const std::vector<std::string> performed{"perform 14 0.625", "perform 3 0",
                                             "perform 1 0.886122"};
    EXPECT_EQ(told("perform"), performed);
    const std::vector<std::string> begun{"begin 14", "begin 3", "begin 1"};
    EXPECT_EQ(told("begin"), begun);
    const std::vector<std::string> ended{"end 14", "end 3", "end 1"};
    EXPECT_EQ(told("end"), ended);
    EXPECT_EQ(host.lines.front(), "begin 14");
    EXPECT_EQ(host.lines.back(), "end 1");
}

TEST_F(BankImport, needsNoHandler) {
    instance.controller().setComponentHandler(nullptr);
    EXPECT_EQ(instance.restore(savedBank(savedChunk())), kResultOk);
    expectEntries();
    EXPECT_EQ(host.lines, std::vector<std::string>());
}

TEST_F(BankImport, worksFromTheControllersSideToo) {
    HostStream stream(savedBank(savedChunk()));
    EXPECT_EQ(instance.controller().setComponentState(&stream), kResultOk);
    expectEntries();
}

TEST_F(BankImport, putsTheStreamBack) {
    HostStream stream(ByteBuilder().text("xyz").append(savedBank(savedChunk())).bytes());
    stream.position = 3;
    EXPECT_EQ(instance.component().setState(&stream), kResultOk);
    expectEntries();
    EXPECT_EQ(stream.position, 3U);
}

TEST_F(BankImport, looksIntoTheWrapperOfOlderHosts) {
    BankFixture bank;
    bank.plugIn = "QMbl";
    bank.wrapperBypass = 0;
    bank.chunk = encodeVst2(savedChunk());
    EXPECT_EQ(instance.restore(encodeBank(bank)), kResultOk);
    expectEntries();
}

TEST_F(BankImport, skipsEntriesOfNoParameter) {
    Vst2Fixture chunk = savedChunk();
    chunk.entries.insert(chunk.entries.begin() + 1, {"zzzz", 0.5});
    EXPECT_EQ(instance.restore(savedBank(chunk)), kResultOk);
    expectEntries();
    EXPECT_EQ(told("perform").size(), 3U);
}

TEST_F(BankImport, clampsWhatIsOutOfRange) {
    Vst2Fixture chunk = savedChunk();
    chunk.entries = {{"gain", 1e6}, {"afre", -1e6}};
    EXPECT_EQ(instance.restore(savedBank(chunk)), kResultOk);
    EXPECT_NEAR(instance.plain("gain"), 24.0, 1e-9);
    EXPECT_NEAR(instance.plain("afre"), 1.0, 1e-9);
    for (const std::string& line : told("perform"))
        EXPECT_TRUE(line == "perform 14 1" || line == "perform 1 0") << line;
}

// Chunks of big-endian machines have always been read with their values' bit patterns as numbers,
// which are beyond every range.
TEST_F(BankImport, readsSwappedChunksAsTheyWereAlwaysRead) {
    BankFixture bank;
    bank.plugIn = "QMbl";
    bank.chunk = encodeVst2BigEndian(savedChunk());
    EXPECT_EQ(instance.restore(encodeBank(bank)), kResultOk);
    EXPECT_NEAR(instance.plain("gain"), 24.0, 1e-9);
    EXPECT_EQ(instance.plain("osc1"), 0.0); // the pattern of 0.0 is 0
    EXPECT_NEAR(instance.plain("afre"), 440.0, 1e-9);
}

TEST_F(BankImport, declinesBanksOfPrograms) {
    ProgramFixture program;
    program.values = {0.5F, 0.25F};
    BankFixture bank;
    bank.plugIn = "QMbl";
    bank.kind = "FxBk";
    bank.programs = {program};
    expectDeclined(encodeBank(bank));
}

TEST_F(BankImport, declinesChunksWithoutTheMarker) {
    Vst2Fixture chunk = savedChunk();
    chunk.marker = 0x12345678;
    expectDeclined(savedBank(chunk));
}

TEST_F(BankImport, declinesBanksCutOffAnywhere) {
    Vst2Fixture chunk = savedChunk();
    chunk.recordBlockFlag = 0;
    chunk.surplus = 0;
    const Bytes whole = savedBank(chunk);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        expectDeclined(firstBytes(whole, length));
    }
}
