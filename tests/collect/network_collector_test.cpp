// The network collectors over a scripted source: kinds and link words, addresses, the change
// check, the traffic sample and when it asks the application to end.
#include "collect/load_system_information.h"

#include "support/fake_network_source.h"

#include <gtest/gtest.h>

namespace {

struct Collector {
    FakeNetworkSource* network = nullptr;
    std::unique_ptr<LoadSystemInformation> info;

    Collector()
    {
        auto source = std::make_unique<FakeNetworkSource>();
        network = source.get();
        SourceSet sources;
        sources.network = std::move(source);
        info = std::make_unique<LoadSystemInformation>(std::move(sources));
    }
};

NetworkInterface listed(std::string name, std::int64_t type, bool device, std::string devType = {})
{
    NetworkInterface itf = FakeNetworkSource::wired(std::move(name), "up");
    itf.type = type;
    itf.hasDevice = device;
    if (!devType.empty())
        itf.devType = devType;
    return itf;
}

} // namespace

TEST(NetworkInterfaceRules, KindsLinkWordsAndHardwareAddresses)
{
    NetworkInterface wifi = listed("wlp2s0", 1, true);
    wifi.wireless = true;
    NetworkInterface bridge = listed("br0", 1, false);
    bridge.bridge = true;
    EXPECT_EQ(interfaceType(listed("lo", 772, false)), "Loopback");
    EXPECT_EQ(interfaceType(wifi), "Wi-Fi");
    EXPECT_EQ(interfaceType(listed("wlan1", 1, false, "wlan")), "Wi-Fi");
    EXPECT_EQ(interfaceType(bridge), "Bridge");
    EXPECT_EQ(interfaceType(listed("tun0", 65534, false)), "Tunnel");
    EXPECT_EQ(interfaceType(listed("wg0", 65534, false, "wireguard")), "Tunnel");
    EXPECT_EQ(interfaceType(listed("veth1a2b", 1, false)), "Virtual");
    EXPECT_EQ(interfaceType(listed("enp0s31f6", 1, true)), "Ethernet");

    EXPECT_EQ(linkStatusFromOperState("up"), "Active");
    EXPECT_EQ(linkStatusFromOperState("dormant"), "Inactive");
    EXPECT_EQ(linkStatusFromOperState("down"), "Inactive");
    EXPECT_EQ(linkStatusFromOperState("unknown"), "Unknown");
    EXPECT_EQ(linkStatusFromOperState(std::nullopt), "Unknown");

    EXPECT_EQ(macAddressText("a0:b1:c2:d3:e4:f5"), "A0:B1:C2:D3:E4:F5");
    EXPECT_EQ(macAddressText("0:1:2:3:4:5"), "00:01:02:03:04:05");
    EXPECT_FALSE(macAddressText("00:00:00:00:00:00")); // loopback's
    EXPECT_FALSE(macAddressText("0a:00:00:01"));       // an IPIP tunnel's four bytes
    EXPECT_FALSE(macAddressText("a0:b1:c2:d3:e4:f5:06"));
    EXPECT_FALSE(macAddressText("a0:b1:c2:d3:e4:zz"));
}

TEST(NetworkBaseAndChangeCheck, LastAddressWinsAndEveryChangeIsReportedOnce)
{
    Collector c;
    NetworkInterface eth = FakeNetworkSource::wired("eth0", "up");
    eth.speedMbps = 1000;
    eth.model = "Ethernet Connection I219-LM";
    c.network->listed = {eth, FakeNetworkSource::wired("eth1", "down")};
    c.network->addressList = {{"eth0", false, "192.168.1.5"}, {"eth0", true, "fe80::1"}, {"eth0", false, "10.0.0.7"}};

    const NetworkBase base = c.info->retNetworkBase();
    ASSERT_EQ(base.size(), 2u);
    const NetworkBaseEntry& wired = base.at("eth0");
    EXPECT_EQ(wired.itf, (InterfaceIdentity{"Ethernet Connection I219-LM", "Ethernet"}));
    EXPECT_EQ(wired.ip, (InterfaceAddresses{"10.0.0.7", "fe80::1"}));
    EXPECT_EQ(wired.nic->linkstatus, "Active");
    EXPECT_EQ(wired.nic->speed, 1'000'000'000);
    EXPECT_EQ(base.at("eth1").itf->name, "eth1"); // not in the hardware database
    EXPECT_FALSE(base.at("eth1").ip);

    EXPECT_FALSE(c.info->checkInterfaceStatusChange()); // the first look is a change
    EXPECT_TRUE(c.info->checkInterfaceStatusChange());
    c.network->addressList.push_back({"eth1", true, "2001:db8::2"});
    EXPECT_FALSE(c.info->checkInterfaceStatusChange());
    EXPECT_TRUE(c.info->checkInterfaceStatusChange());
    c.network->listed[1].operState = "up";
    EXPECT_FALSE(c.info->checkInterfaceStatusChange());
    c.info->clearInterfaceStatusChange();
    EXPECT_FALSE(c.info->checkInterfaceStatusChange());

    // Unannounced, nothing is looked at; once the kept state is forgotten, it is looked at anyway.
    c.network->announced = false;
    c.network->listed[1].operState = "down";
    EXPECT_TRUE(c.info->checkInterfaceStatusChange());
    c.info->clearInterfaceStatusChange();
    EXPECT_FALSE(c.info->checkInterfaceStatusChange());
    c.network->announced = true;

    // With no interface at all both states are empty: nothing to report.
    c.network->listed.clear();
    c.network->addressList.clear();
    EXPECT_FALSE(c.info->checkInterfaceStatusChange());
    c.info->clearInterfaceStatusChange();
    EXPECT_TRUE(c.info->checkInterfaceStatusChange());
}

TEST(NetworkSample, TotalsCoverEveryRowAndPacketsOnlyActiveInterfaces)
{
    Collector c;
    c.network->listed = {FakeNetworkSource::wired("eth0", "up"), FakeNetworkSource::wired("eth1", "down")};
    c.network->rows =
        std::vector<InterfaceCounters>{{"lo", 500, 5, 500, 5}, {"eth0", 1000, 10, 2000, 20}, {"eth1", 7, 1, 9, 1}};
    const NetworkBase base = c.info->retNetworkBase();

    const auto sample = c.info->loadNetworkData(2.0, base);
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->toDw, 1507);
    EXPECT_EQ(sample->toUp, 2509);
    EXPECT_EQ(sample->interval, 2.0);
    EXPECT_EQ(sample->packets, (std::vector<InterfacePackets>{{"eth0", 20, 10}}));

    c.network->rows.reset();
    EXPECT_FALSE(c.info->loadNetworkData(2.0, base));
    EXPECT_FALSE(c.info->terminationRequested());
}

TEST(NetworkSample, AnActiveInterfaceMissingFromTheTableIsLookedAtAgain)
{
    Collector c;
    c.network->listed = {FakeNetworkSource::wired("eth0", "up"), FakeNetworkSource::wired("usb0", "up")};
    const NetworkBase base = c.info->retNetworkBase();
    c.network->rows = std::vector<InterfaceCounters>{{"eth0", 1000, 10, 2000, 20}};

    // Pulled between the listing and the read: simply not in this sample.
    auto sample = c.info->loadNetworkData(1.0, base);
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->packets.size(), 1u);
    EXPECT_FALSE(c.info->terminationRequested());

    // Still there and its counters readable another way: counted.
    c.network->secondLook["usb0"] = {true, InterfaceCounters{"usb0", 3, 4, 5, 6}};
    sample = c.info->loadNetworkData(1.0, base);
    ASSERT_TRUE(sample);
    ASSERT_NE(sample->packetsOf("usb0"), nullptr);
    EXPECT_EQ(*sample->packetsOf("usb0"), (InterfacePackets{"usb0", 6, 4}));
    EXPECT_FALSE(c.info->terminationRequested());

    // Still up, yet no counters at all: the figures can no longer be trusted.
    c.network->secondLook["usb0"] = {true, std::nullopt};
    EXPECT_TRUE(c.info->loadNetworkData(1.0, base));
    EXPECT_TRUE(c.info->terminationRequested());
}
