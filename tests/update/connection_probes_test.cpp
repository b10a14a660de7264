#include "update/connection_probes.h"

#include "support/test_platform.h"

namespace horavex {
namespace {

class ConnectionProbesTest : public testing::Test {
protected:
    std::string SummaryOf(unsigned flags) {
        platform.network.connection = {true, flags};
        return GetConnectionSummary();
    }

    TestPlatform platform;
};

TEST_F(ConnectionProbesTest, OnlineIsTheSystemsAnswerWhateverTheBits) {
    platform.network.connection = {true, 0};
    EXPECT_EQ(IsOnline(), -1);
    platform.network.connection = {false, 0x7f};
    EXPECT_EQ(IsOnline(), 0);
}

TEST_F(ConnectionProbesTest, EachProbeLooksAtItsOwnBit) {
    for (const unsigned flags : {1U, 2U, 4U, 8U, 16U, 32U, 64U}) {
        platform.network.connection = {false, flags};
        EXPECT_EQ(IsModemConnection(), flags == 1 ? -1 : 0) << flags;
        EXPECT_EQ(IsLanConnection(), flags == 2 ? -1 : 0) << flags;
        EXPECT_EQ(IsProxyConnection(), flags == 4 ? -1 : 0) << flags;
        EXPECT_EQ(IsRasInstalled(), flags == 16 ? -1 : 0) << flags;
    }
}

TEST_F(ConnectionProbesTest, NothingIsKeptBetweenTwoQuestions) {
    platform.network.connection = {true, 2};
    EXPECT_EQ(IsLanConnection(), -1);
    platform.network.connection = {false, 0};
    EXPECT_EQ(IsLanConnection(), 0);
    EXPECT_EQ(IsOnline(), 0);
}

TEST_F(ConnectionProbesTest, LanEndsInTwoFullStops) {
    EXPECT_EQ(SummaryOf(2), "Connect via a LAN..");
}

TEST_F(ConnectionProbesTest, ConfiguredLanBehindAProxyIsOfTwoLines) {
    EXPECT_EQ(SummaryOf(64 + 2 + 4),
              "Network connection configured.\r\nConnect via a LAN., and uses a proxy server.");
}

TEST_F(ConnectionProbesTest, ModemBeginsWithTheStopOrTheProxy) {
    EXPECT_EQ(SummaryOf(1), ".Connect via a Modem.");
    EXPECT_EQ(SummaryOf(1 + 4), ", and uses a proxy server.Connect via a Modem.");
}

TEST_F(ConnectionProbesTest, AllPiecesComeInTheirOrder) {
    EXPECT_EQ(SummaryOf(127),
              "Network connection configured.\r\nConnect via a LAN., and uses a proxy server."
              "Connect via a Modem.Connection offline."
              "Modem is busy with a non-Internet connection."
              "Remote Access Services are installed.");
}

TEST_F(ConnectionProbesTest, NoConnectionIsOneSentenceWhateverTheBits) {
    platform.network.connection = {false, 0x7f};
    EXPECT_EQ(GetConnectionSummary(), "No internet connection.");
}

}  // namespace
}  // namespace horavex
