// SPDX-License-Identifier: GPL-3.0-or-later
#include "QMShell/state/Vst2Bank.h"

#include "QMShell/state/tests/support/EnvelopeEncoder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr FourCharCode product = fourCharCode("qmBR");

BankFixture opaqueBank() {
    BankFixture bank;
    bank.chunk = bytesOf({1, 2, 3});
    bank.currentProgram = 5;
    bank.programCount = 8;
    return bank;
}

BankFixture bankOfPrograms() {
    BankFixture bank;
    bank.kind = "FxBk";
    ProgramFixture values;
    values.name = "First";
    values.values = {0.0F, 0.25F, 1.0F};
    ProgramFixture opaque;
    opaque.kind = "FPCh";
    opaque.name = "A name of twenty-eight bytes"; // no zero byte at its end
    opaque.chunk = bytesOf({9, 8, 7, 6});
    bank.programs = {values, opaque, ProgramFixture()};
    bank.programCount = 3;
    return bank;
}

Bytes chunkOf(std::span<const std::byte> chunk) {
    return {chunk.begin(), chunk.end()};
}

/// The bytes stay where they are as long as the bank is looked at.
std::optional<Vst2Bank> parse(const Bytes& bytes) {
    return parseVst2Bank(bytes);
}

} // namespace

TEST(Vst2Bank, theEncoderMakesThePublishedLayout) {
    BankFixture fixture = opaqueBank();
    fixture.wrapperBypass = 1;
    const Bytes expected = ByteBuilder()
                               .append(bytesOfHex("56737457 00000008 00000001 00000001"
                                                  "43636E4B 0000009B 46424368 00000002"
                                                  "716D4252 00040002 00000008 00000005"))
                               .zeros(124)
                               .append(bytesOfHex("00000003 010203"))
                               .bytes();
    EXPECT_EQ(encodeBank(fixture), expected);
}

TEST(Vst2Bank, anOpaqueBankHasItsChunk) {
    const Bytes bytes = encodeBank(opaqueBank());
    const auto bank = parse(bytes);
    ASSERT_TRUE(bank);
    EXPECT_FALSE(bank->bypassed);
    EXPECT_EQ(bank->plugIn, product);
    EXPECT_EQ(bank->plugInVersion, 0x40002);
    EXPECT_EQ(bank->programCount, 8);
    EXPECT_EQ(bank->currentProgram, 5);
    EXPECT_TRUE(bank->programs.empty());
    EXPECT_EQ(chunkOf(bank->chunk), bytesOf({1, 2, 3}));
}

TEST(Vst2Bank, theWrapperTellsOfBypass) {
    for (const std::uint32_t bypass : {0u, 1u, 0x80000000u}) {
        BankFixture fixture = opaqueBank();
        fixture.wrapperBypass = bypass;
        const Bytes bytes = encodeBank(fixture);
        const auto bank = parse(bytes);
        ASSERT_TRUE(bank);
        EXPECT_EQ(bank->bypassed, bypass != 0);
        EXPECT_EQ(chunkOf(bank->chunk), bytesOf({1, 2, 3}));
    }
}

TEST(Vst2Bank, theFirstVersionDoesNotTellTheCurrentProgram) {
    BankFixture fixture = opaqueBank();
    fixture.version = 1;
    const Bytes bytes = encodeBank(fixture);
    const auto bank = parse(bytes);
    ASSERT_TRUE(bank);
    EXPECT_FALSE(bank->currentProgram);
    EXPECT_EQ(chunkOf(bank->chunk), bytesOf({1, 2, 3}));
}

TEST(Vst2Bank, aBankOfProgramsHasThemAll) {
    const Bytes bytes = encodeBank(bankOfPrograms());
    const auto bank = parse(bytes);
    ASSERT_TRUE(bank);
    EXPECT_TRUE(bank->chunk.empty());
    ASSERT_EQ(bank->programs.size(), 3u);
    EXPECT_EQ(bank->programs[0].name, "First");
    EXPECT_EQ(bank->programs[0].values, (std::vector<float>{0.0F, 0.25F, 1.0F}));
    EXPECT_TRUE(bank->programs[0].chunk.empty());
    EXPECT_EQ(bank->programs[0].plugIn, product);
    EXPECT_EQ(bank->programs[0].plugInVersion, 0x40002);
    EXPECT_EQ(bank->programs[1].name, "A name of twenty-eight bytes");
    EXPECT_TRUE(bank->programs[1].values.empty());
    EXPECT_EQ(chunkOf(bank->programs[1].chunk), bytesOf({9, 8, 7, 6}));
    EXPECT_TRUE(bank->programs[2].name.empty());
    EXPECT_TRUE(bank->programs[2].values.empty());
}

TEST(Vst2Bank, theIdentifierIsCheckedWhenAsked) {
    const Bytes bytes = encodeBank(opaqueBank());
    EXPECT_TRUE(parseVst2Bank(bytes, product));
    EXPECT_FALSE(parseVst2Bank(bytes, fourCharCode("qmBS")));
    EXPECT_FALSE(parseVst2Bank(bytes, FourCharCode{0}));
}

TEST(Vst2Bank, aBankWithoutProgramsIsNone) {
    for (const std::uint32_t count : {0u, 0x80000000u, 0xFFFFFFFFu}) {
        BankFixture fixture = opaqueBank();
        fixture.programCount = count;
        EXPECT_FALSE(parse(encodeBank(fixture))) << count;
        fixture = bankOfPrograms();
        fixture.programCount = count;
        EXPECT_FALSE(parse(encodeBank(fixture))) << count;
    }
}

TEST(Vst2Bank, otherMagicsAreNone) {
    BankFixture fixture = opaqueBank();
    fixture.magic = "CcnX";
    EXPECT_FALSE(parse(encodeBank(fixture)));
    fixture.wrapperBypass = 0;
    EXPECT_FALSE(parse(encodeBank(fixture)));
    fixture = opaqueBank();
    for (const char* kind : {"FxCk", "FPCh", "abcd"}) {
        fixture.kind = kind;
        EXPECT_FALSE(parse(encodeBank(fixture))) << kind;
    }
    fixture = bankOfPrograms();
    fixture.programs[1].magic = "CcnX";
    EXPECT_FALSE(parse(encodeBank(fixture)));
    fixture = bankOfPrograms();
    fixture.programs[1].kind = "FxBk";
    EXPECT_FALSE(parse(encodeBank(fixture)));
}

TEST(Vst2Bank, aWrapperInsideAWrapperIsNone) {
    BankFixture fixture = opaqueBank();
    fixture.wrapperBypass = 0;
    const Bytes inner = encodeBank(fixture);
    const Bytes bytes =
        ByteBuilder().text("VstW").bigU32(8).bigU32(1).bigU32(0).append(inner).bytes();
    EXPECT_FALSE(parse(bytes));
}

TEST(Vst2Bank, countsBeyondTheDataAreRefusedWithoutTakingMemory) {
    for (const std::uint32_t claimed : {4u, 0x10000000u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        BankFixture chunk = opaqueBank();
        chunk.claimedChunkSize = claimed;
        EXPECT_FALSE(parse(encodeBank(chunk))) << claimed;
        BankFixture programs = bankOfPrograms();
        programs.programCount = claimed;
        EXPECT_FALSE(parse(encodeBank(programs))) << claimed;
        BankFixture values = bankOfPrograms();
        values.programs.resize(1);
        values.programCount = 1;
        values.programs[0].claimedCount = claimed;
        EXPECT_FALSE(parse(encodeBank(values))) << claimed;
        BankFixture opaque = bankOfPrograms();
        opaque.programs.erase(opaque.programs.begin());
        opaque.programs.resize(1);
        opaque.programCount = 1;
        opaque.programs[0].claimedCount = std::max(claimed, 5u); // it has four bytes
        EXPECT_FALSE(parse(encodeBank(opaque))) << claimed;
    }
}

TEST(Vst2Bank, whatFollowsIsLeftAlone) {
    for (const BankFixture& fixture : {opaqueBank(), bankOfPrograms()}) {
        Bytes bytes = encodeBank(fixture);
        bytes.resize(bytes.size() + 100, std::byte{0xEE});
        EXPECT_TRUE(parse(bytes));
    }
}

TEST(Vst2Bank, fewerProgramsThanThereAreAreRead) {
    BankFixture fixture = bankOfPrograms();
    fixture.programCount = 1;
    const Bytes bytes = encodeBank(fixture);
    const auto bank = parse(bytes);
    ASSERT_TRUE(bank);
    EXPECT_EQ(bank->programs.size(), 1u);
}

TEST(Vst2Bank, truncationAtEveryByteIsNone) {
    BankFixture wrapped = opaqueBank();
    wrapped.wrapperBypass = 1;
    for (const BankFixture& fixture : {opaqueBank(), wrapped, bankOfPrograms()}) {
        const Bytes whole = encodeBank(fixture);
        ASSERT_TRUE(parse(whole));
        for (std::size_t length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(parse(firstBytes(whole, length))) << length;
    }
}

TEST(Vst2Bank, everySingleBitFlipIsReadOrRefusedByItsField) {
    const Bytes whole = encodeBank(opaqueBank());
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        const std::size_t byte = bit / 8;
        const bool magicOrKind = byte < 4 || (byte >= 8 && byte < 12);
        // Eight programs, big-endian: negative by the first bit, none without the one that is set.
        const bool noProgram = (byte == 24 && bit % 8 == 7) || (byte == 27 && bit % 8 == 3);
        // The chunk's 3 bytes: its length may lose a bit, and may not gain one.
        const bool longer = byte >= 156 && byte < 160 && !(byte == 159 && bit % 8 < 2);
        EXPECT_EQ(parse(withBitFlipped(whole, bit)).has_value(),
                  !(magicOrKind || noProgram || longer))
            << bit;
    }
}

TEST(Vst2Bank, onlyTheTwoMagicsMayBeginOne) {
    EXPECT_TRUE(mayBeginVst2Bank(ByteBuilder().text("VstW").bytes()));
    EXPECT_TRUE(mayBeginVst2Bank(ByteBuilder().text("CcnK").bytes()));
    EXPECT_FALSE(mayBeginVst2Bank(ByteBuilder().text("KncC").bytes()));
    EXPECT_FALSE(mayBeginVst2Bank(ByteBuilder().text("Ccn").bytes()));
    EXPECT_FALSE(mayBeginVst2Bank({}));
}
