// Server strings of viewers and typed addresses as vnc: URLs: display numbers, raw ports, IPv6.
#include "net/vnc_server_address.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

struct AddressCase {
    const char* given;
    std::optional<const char*> url;
};

void expectUrl(const std::optional<QString>& got, const AddressCase& c)
{
    if (c.url)
        EXPECT_EQ(got.value_or(QStringLiteral("(none)")), QString::fromUtf8(*c.url)) << c.given;
    else
        EXPECT_FALSE(got.has_value()) << c.given << " gave " << got->toStdString();
}

} // namespace

TEST(VncServerAddress, ViewerServersFollowTheDisplayNumberRule)
{
    const AddressCase cases[] = {
        {"host", "vnc://host"},
        {"host:1", "vnc://host:5901"},
        {"host:99", "vnc://host:5999"},
        {"host:5901", "vnc://host:5901"}, // 100 and above is a port already
        {"host::5", "vnc://host:5"},      // a double colon always gives a port
        {" host:2 ", "vnc://host:5902"},
        {"[fd00::5]:2", "vnc://[fd00::5]:5902"},
        {"[fd00::5]::6000", "vnc://[fd00::5]:6000"},
        {"fd00:1::5", "vnc://[fd00:1::5]"}, // colons of a bare IPv6 address are no port
        {"fd00::5", "vnc://fd00:5"},        // but "x::n" is a port, as TigerVNC reads it
        {":1", "vnc://localhost:5901"},
        {"/run/user/1000/vnc.sock", std::nullopt},
        {"host:abc", std::nullopt},
        {"host::70000", std::nullopt},
        {"[fd00::5", std::nullopt},
        {"[fd00::5]x", std::nullopt},
        {"", std::nullopt},
    };
    for (const AddressCase& c : cases)
        expectUrl(VncServerAddress::urlFromViewerServer(QString::fromUtf8(c.given)), c);
}

TEST(VncServerAddress, TypedAddressesBecomeVncUrlsWithTheirPort)
{
    const AddressCase cases[] = {
        {"vnc://mac.local:5900", "vnc://mac.local:5900"},
        {"VNC://Mac.local", "vnc://mac.local"},
        {"vnc://user@mac.local?VncUsername=user", "vnc://user@mac.local?VncUsername=user"},
        {"mac.local", "vnc://mac.local"},
        {" mac.local:5901 ", "vnc://mac.local:5901"},
        {"10.0.0.2:1", "vnc://10.0.0.2:1"}, // typed: a port, never a display
        {"fd00::5", "vnc://[fd00::5]"},
        {"[fd00::5]:5900", "vnc://[fd00::5]:5900"},
        {"http://mac.local", std::nullopt},
        {"mac local", std::nullopt},
        {"mac.local:port", std::nullopt},
        {"mac.local:0", std::nullopt},
        {"mac.local/screen", std::nullopt},
        {"vnc://", std::nullopt},
        {"   ", std::nullopt},
    };
    for (const AddressCase& c : cases)
        expectUrl(VncServerAddress::normalizedUrl(QString::fromUtf8(c.given)), c);
}
