// The importers over fixture homes: Remmina's VNC profiles, TigerVNC's history, .vncloc folders.
#include "net/vnc_host_importers.h"
#include "net/vnc_user_dirs.h"
#include "support/fixture_paths.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace {

using Expected = std::vector<std::pair<QString, QString>>; // name, url

QString fixture(const char* relative)
{
    return QString::fromStdString((projectFixtures() / "vnc" / relative).string());
}

Expected namesAndUrls(const QList<VncHost>& hosts)
{
    Expected out;
    for (const VncHost& host : hosts) {
        EXPECT_FALSE(host.menu) << "imported hosts stay out of the menu: " << host.name.toStdString();
        out.emplace_back(host.name, host.url);
    }
    return out;
}

const Expected kRemminaHosts{
    {"Office Mac", "vnc://office.example.com:5901"},
    {"[fd00::5]::5999", "vnc://[fd00::5]:5999"}, // no name: named after its server
    {"Studio Rack", "vnc://studio.local"},
};
const Expected kTigerHosts{
    {"build.example.org::5910", "vnc://build.example.org:5910"},
    {"raspberrypi:2", "vnc://raspberrypi:5902"},
    {"10.0.0.7", "vnc://10.0.0.7"},
};

} // namespace

TEST(VncHostImporters, RemminaGivesItsVncProfilesOnly)
{
    // The RDP profile, the listening VNCI one and the preferences file are left out.
    EXPECT_EQ(namesAndUrls(GeneralFunctions::importRemminaProfiles(fixture("home/.local/share/remmina"))),
              kRemminaHosts);
}

TEST(VncHostImporters, RemminaProfilesWithoutAVncServerAreSkipped)
{
    const std::pair<const char*, bool> profiles[] = {
        {"[remmina]\nprotocol=VNC\nserver=\n", false},    {"[remmina]\nprotocol=VNC\nserver=/tmp/socket\n", false},
        {"[other]\nprotocol=VNC\nserver=host\n", false},  {"[remmina]\nprotocol=SPICE\nserver=host\n", false},
        {"[remmina]\nprotocol=vnc\nserver=host\n", true},
    };
    for (const auto& [text, kept] : profiles)
        EXPECT_EQ(GeneralFunctions::parseRemminaProfile(QString::fromUtf8(text)).has_value(), kept) << text;
}

TEST(VncHostImporters, TigerVncHistoryGivesOneHostALine)
{
    // The blank line and the socket path are skipped, the Windows line end is not part of a name.
    EXPECT_EQ(
        namesAndUrls(GeneralFunctions::importTigerVncHistory(fixture("home/.local/state/tigervnc/tigervnc.history"))),
        kTigerHosts);
}

TEST(VncHostImporters, TigerVncHistoryIsReadWhereTheViewerKeepsIt)
{
    // With ~/.vnc present the viewer still writes there, so the XDG copy is an old one.
    const QString home = fixture("legacy-home");
    EXPECT_EQ(namesAndUrls(GeneralFunctions::importScreenShareFiles(VncUserDirs::underHome(home))),
              (Expected{{"old-server:3", "vnc://old-server:5903"}}));
}

TEST(VncHostImporters, UserHomeGivesRemminaThenTigerVnc)
{
    Expected all = kRemminaHosts;
    all.insert(all.end(), kTigerHosts.begin(), kTigerHosts.end());
    EXPECT_EQ(namesAndUrls(GeneralFunctions::importScreenShareFiles(VncUserDirs::underHome(fixture("home")))), all);
    EXPECT_TRUE(GeneralFunctions::importScreenShareFiles(VncUserDirs::underHome(fixture("missing"))).isEmpty());
}

TEST(VncHostImporters, VnclocFilesAreNamedAfterTheirFile)
{
    // The file without a URL and the text file are skipped.
    EXPECT_EQ(namesAndUrls(GeneralFunctions::importScreenShareFileFromAs(fixture("vncloc"))),
              (Expected{{"Studio.vncloc", "vnc://studio.local:5901"}}));
    EXPECT_TRUE(GeneralFunctions::importScreenShareFileFromAs(fixture("missing")).isEmpty());
}

TEST(VncHostImporters, ImportedHostsFollowTheStoredOnesWithoutAMenuEntry)
{
    const QVariantMap stored{{"name", "Office Mac"}, {"url", "vnc://office.example.com:5901"}, {"menu", true}};
    const QVariantList list =
        VncHostRecords::appendImported({stored}, {{"Office Mac", "vnc://office.example.com:5901"}});
    ASSERT_EQ(list.size(), 2); // the same host twice: nothing is merged at this step
    EXPECT_EQ(list.at(0).toMap(), stored);
    EXPECT_EQ(list.at(1).toMap(), (QVariantMap{{"name", "Office Mac"}, {"url", "vnc://office.example.com:5901"}}));
}
