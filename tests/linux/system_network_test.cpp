#include "linux/system_network.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <list>

#include "support/scoped_variable.h"
#include "support/temporary_folder.h"

namespace horavex {
namespace {

constexpr const char* kHeading =
    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n";
constexpr const char* kDefaultOverEthernet =
    "eth0\t00000000\t0102A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n";
constexpr const char* kNeighboursOfEthernet =
    "eth0\t0002A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n";
constexpr const char* kDefaultOverModem =
    "ppp0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n";
constexpr const char* kNoAddress = "00000000000000000000000000000000";

/// A machine whose routes and interfaces are files of the test.
class SystemNetworkTest : public testing::Test {
protected:
    SystemNetworkTest() {
        for (const char* name :
             {"http_proxy", "https_proxy", "all_proxy", "HTTP_PROXY", "HTTPS_PROXY", "ALL_PROXY"}) {
            proxies.emplace_back(name, nullptr);
        }
        SetType("lo", 772);
        SetType("eth0", 1);
        SetType("wwan0", 1);
        SetType("ppp0", 512);
    }

    void Write(const std::string& path, const std::string& content) {
        std::filesystem::create_directories(std::filesystem::path(root / path).parent_path());
        std::ofstream(root / path) << content;
    }
    void SetType(const std::string& interface, int type) {
        Write("sys/class/net/" + interface + "/type", std::to_string(type) + "\n");
    }
    void SetRoutes(const std::string& lines) { Write("proc/net/route", kHeading + lines); }

    TemporaryFolder root;
    std::list<ScopedVariable> proxies;
    SystemNetwork network{root.Path()};
};

TEST_F(SystemNetworkTest, MachineWithoutRoutesIsOffline) {
    SetRoutes("");
    EXPECT_FALSE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kConnectionOffline);
}

TEST_F(SystemNetworkTest, MachineThatTellsNothingIsOffline) {
    EXPECT_FALSE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kConnectionOffline);
}

TEST_F(SystemNetworkTest, DefaultRouteOverEthernetIsALan) {
    SetRoutes(std::string(kDefaultOverEthernet) + kNeighboursOfEthernet);
    EXPECT_TRUE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kLanConnection | kConnectionConfigured);
}

TEST_F(SystemNetworkTest, LanWithoutAWayOutIsConfiguredAndOffline) {
    SetRoutes(kNeighboursOfEthernet);
    EXPECT_FALSE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags,
              kLanConnection | kConnectionConfigured | kConnectionOffline);
}

TEST_F(SystemNetworkTest, DefaultRouteOverAModemIsAModem) {
    SetRoutes(kDefaultOverModem);
    EXPECT_TRUE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kModemConnection | kConnectionConfigured);
}

TEST_F(SystemNetworkTest, MobileNetworkIsAModem) {
    SetRoutes("wwan0\t00000000\t00000000\t0001\t0\t0\t0\t00000000\t0\t0\t0\n");
    EXPECT_EQ(network.Connection().flags, kModemConnection | kConnectionConfigured);
}

TEST_F(SystemNetworkTest, NewerProtocolAloneConnectsToo) {
    Write("proc/net/ipv6_route", std::string(kNoAddress) + " 00 " + kNoAddress + " 00 " +
                                     "fe800000000000000000000000000001 00000064 00000001 "
                                     "00000000 00000003     eth0\n");
    EXPECT_TRUE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kLanConnection | kConnectionConfigured);
}

TEST_F(SystemNetworkTest, UnreachableDefaultRouteConnectsNothing) {
    SetRoutes("*\t00000000\t00000000\t0200\t0\t0\t0\t00000000\t0\t0\t0\n");
    Write("proc/net/ipv6_route", std::string(kNoAddress) + " 00 " + kNoAddress + " 00 " +
                                     kNoAddress +
                                     " ffffffff 00000001 00000000 00200200     eth0\n");
    EXPECT_FALSE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kConnectionOffline);
}

TEST_F(SystemNetworkTest, UnreachableRouteHidesNoWayOut) {
    SetRoutes("*\t00000000\t00000000\t0200\t0\t0\t999\t00000000\t0\t0\t0\n" +
              std::string(kDefaultOverEthernet));
    EXPECT_TRUE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kLanConnection | kConnectionConfigured);
}

TEST_F(SystemNetworkTest, LoopbackConnectsNothing) {
    Write("proc/net/ipv6_route", std::string(kNoAddress) + " 00 " + kNoAddress + " 00 " +
                                     kNoAddress +
                                     " ffffffff 00000001 00000000 00200200       "
                                     "lo\n");
    EXPECT_FALSE(network.Connection().isConnected);
    EXPECT_EQ(network.Connection().flags, kConnectionOffline);
}

TEST_F(SystemNetworkTest, ProxyVariableIsTold) {
    const ScopedVariable proxy("https_proxy", "http://proxy.example:3128");
    EXPECT_EQ(network.Connection().flags, kProxyConnection | kConnectionOffline);
}

TEST_F(SystemNetworkTest, EmptyProxyVariableIsNone) {
    const ScopedVariable proxy("http_proxy", "");
    EXPECT_EQ(network.Connection().flags, kConnectionOffline);
}

TEST_F(SystemNetworkTest, DiallerIsRemoteAccess) {
    Write("usr/sbin/pppd", "");
    EXPECT_EQ(network.Connection().flags, kRasInstalled | kConnectionOffline);
}

}  // namespace
}  // namespace horavex
