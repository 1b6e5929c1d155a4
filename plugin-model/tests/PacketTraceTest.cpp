// SPDX-License-Identifier: GPL-3.0-or-later
// The developers' switch that shows every delivered packet in the log.
#include "plugin-model/PacketTrace.h"

#include "plugin-model/DspFlusher.h"
#include "plugin-model/NoxSharcFlusher.h"
#include "plugin-model/QMShellFlusher.h"
#include "plugin-model/tests/FlusherTestDoubles.h"
#include "plugin-model/tests/ParameterTemporaryFile.h"

using flusherTest::append;
using parameterTest::LogCapture;
using testing::_;
using testing::NiceMock;
using testing::Return;

namespace {

constexpr std::uint32_t packetLevel = 3;

class PacketTrace : public testing::Test {
protected:
    PacketTrace() {
        const auto script = append({{0, {0x03020100, 0x07060504}}, {1, {0xFFFEFDFC}}});
        ON_CALL(values, generatePackets(_)).WillByDefault(script);
        ON_CALL(values, generateSharcPackets(_)).WillByDefault(script);
        ON_CALL(values, releasePackets(_)).WillByDefault(flusherTest::empty());
        ON_CALL(plugIn, processingHost()).WillByDefault(Return(&host));
    }

    ~PacketTrace() override { packetTraceSwitch().store(false); }

    parameterTest::Set set;
    NiceMock<flusherTest::Values> values{set};
    NiceMock<flusherTest::PlugIn> plugIn;
    NiceMock<MockProcessingHost> host;
};

constexpr const char* bothPackets = "Packet Len: 8\n"
                                    "0000: 00 01 02 03 04 05 06 07 \n"
                                    "\n"
                                    "Packet Len: 4\n"
                                    "0000: fc fd fe ff \n"
                                    "\n";

} // namespace

TEST_F(PacketTrace, startsOff) {
    EXPECT_FALSE(packetTraceSwitch().load());
    const LogCapture log(packetLevel);
    QMShellFlusher(&plugIn).flush(values);
    DspFlusher(&plugIn).flush(values);
    NoxSharcFlusher(&plugIn).flush(values);
    EXPECT_EQ(log.text(), "");
}

TEST_F(PacketTrace, showsEveryPacketOfAFlushInProcess) {
    packetTraceSwitch().store(true);
    const LogCapture log(packetLevel);
    QMShellFlusher(&plugIn).flush(values);
    EXPECT_EQ(log.text(), bothPackets);
}

TEST_F(PacketTrace, showsEveryPacketOfAFlushToADsp) {
    packetTraceSwitch().store(true);
    const LogCapture log(packetLevel);
    DspFlusher(&plugIn).flush(values);
    EXPECT_EQ(log.text(), bothPackets);
}

TEST_F(PacketTrace, showsEveryPacketOfASharcFlush) {
    packetTraceSwitch().store(true);
    const LogCapture log(packetLevel);
    NoxSharcFlusher(&plugIn).flush(values);
    EXPECT_EQ(log.text(), bothPackets);
}

TEST_F(PacketTrace, staysOutOfALogAtItsUsualLevel) {
    packetTraceSwitch().store(true);
    const LogCapture log(1);
    QMShellFlusher(&plugIn).flush(values);
    EXPECT_EQ(log.text(), "");
}

TEST_F(PacketTrace, breaksTheBytesIntoLinesOfSixteen) {
    packetTraceSwitch().store(true);
    const LogCapture log(packetLevel);
    const Packet packet(0, 18);
    static_cast<unsigned char*>(packet.data)[16] = 0xAB;
    tracePacket(packet);
    tracePacket(Packet(1, 0));
    EXPECT_EQ(log.text(), "Packet Len: 18\n"
                          "0000: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 \n"
                          "0010: ab 00 \n"
                          "\n"
                          "Packet Len: 0\n"
                          "\n");
}
