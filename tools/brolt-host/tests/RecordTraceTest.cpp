// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools/brolt-host/RecordTrace.h"

#include "tools/brolt-host/tests/HostTestKit.h"

#include <gmock/gmock.h>

namespace {

Coefficients recordOfVersion(std::int32_t version) {
    Coefficients record;
    record.meterVersion = version;
    return record;
}

} // namespace

TEST(RecordTrace, aLineIsTheFrameAndEighteenWordsInHexadecimal) {
    Coefficients record = recordOfVersion(-2);
    record.outputGain = -0.0F;
    // 1 is 3f800000, 44100 is 472c4400, 0.001 is 3a83126f.
    EXPECT_EQ(
        recordTraceLine(123456789012, record),
        "123456789012 80000000 3f800000 3f800000 3f800000 472c4400 fffffffe 00000000 00000000 "
        "00000000 3a83126f 3f800000 3f800000 3f800000 3f800000 3f800000 3f800000 3f800000 "
        "3f800000\n");
}

TEST(RecordTrace, aRecordIsWrittenWhenItComesIntoUse) {
    const TemporaryFolder folder;
    RecordTrace trace(folder / "t.txt");
    trace.note(0, recordOfVersion(2));
    trace.note(64, recordOfVersion(2));
    trace.note(128, recordOfVersion(3));
    trace.note(192, recordOfVersion(2));
    trace.finish();
    EXPECT_FALSE(std::filesystem::exists(folder / "t.txt"));
    trace.commit();
    EXPECT_EQ(bytesOf(folder / "t.txt"), recordTraceLine(0, recordOfVersion(2)) +
                                             recordTraceLine(128, recordOfVersion(3)) +
                                             recordTraceLine(192, recordOfVersion(2)));
}

TEST(RecordTrace, theFirstRecordIsWrittenWhateverItsVersion) {
    const TemporaryFolder folder;
    RecordTrace trace(folder / "t.txt");
    trace.note(0, recordOfVersion(-1));
    trace.finish();
    trace.commit();
    EXPECT_EQ(bytesOf(folder / "t.txt"), recordTraceLine(0, recordOfVersion(-1)));
}
