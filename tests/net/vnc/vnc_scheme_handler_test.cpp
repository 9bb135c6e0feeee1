// Which application opens vnc: addresses, over fixture trees and small trees made on the spot,
// and the command line made of its Exec key.
#include "toolkit/desktop_exec.h"
#include "net/vnc_scheme_handler.h"
#include "support/fixture_paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

VncXdgDirs fixtureTree(const char* name)
{
    return VncXdgDirs::underRoot(QString::fromStdString((projectFixtures() / "vnc" / name).string()));
}

QString entry(const char* name, const char* mimeTypes, const char* extra = "")
{
    return QStringLiteral("[Desktop Entry]\nType=Application\nName=%1\nExec=%1 %u\nMimeType=%2\n%3\n")
        .arg(QString::fromUtf8(name), QString::fromUtf8(mimeTypes), QString::fromUtf8(extra));
}

struct TreeCase {
    const char* what;
    std::map<std::string, QString> files; // below the root
    QStringList desktops;
    QString expectedId; // empty: none
};

void writeTree(const QString& root, const std::map<std::string, QString>& files)
{
    for (const auto& [path, text] : files) {
        const QString full = root + QLatin1Char('/') + QString::fromStdString(path);
        QDir().mkpath(QFileInfo(full).path());
        QFile file(full);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }
}

} // namespace

TEST(VncSchemeHandler, DefaultListSkipsViewersThatAreNotInstalled)
{
    const auto viewer = VncSchemeHandler::find(fixtureTree("xdg-registered"));
    ASSERT_TRUE(viewer.has_value());
    EXPECT_EQ(viewer->desktopId, QStringLiteral("vncviewer.desktop"));
    EXPECT_EQ(viewer->name, QStringLiteral("TigerVNC Viewer"));
    // Another scheme of the same tree has no default: the entry that claims it answers.
    const auto rdp = VncSchemeHandler::find(fixtureTree("xdg-registered"), QStringLiteral("x-scheme-handler/rdp"));
    ASSERT_TRUE(rdp.has_value());
    EXPECT_EQ(rdp->desktopId, QStringLiteral("org.remmina.Remmina.desktop"));
}

TEST(VncSchemeHandler, RemovedAndHiddenViewersLeaveNone)
{
    // Remmina's claim is removed by the user, TigerVNC's entry is hidden by a user copy, and the
    // default names a viewer that is not installed.
    EXPECT_FALSE(VncSchemeHandler::find(fixtureTree("xdg-unregistered")).has_value());
}

TEST(VncSchemeHandler, FindsTheHandlerTheRulesChoose)
{
    const auto at = [](const char* name) { return std::string("usr/share/applications/") + name; };
    const TreeCase cases[] = {
        {"a claim alone", {{at("remmina.desktop"), entry("remmina", "x-scheme-handler/vnc;")}}, {}, "remmina.desktop"},
        {"an added association",
         {{at("krdc.desktop"), entry("krdc", "text/plain;")},
          {"home/.config/mimeapps.list", "[Added Associations]\nx-scheme-handler/vnc=krdc.desktop;\n"}},
         {},
         "krdc.desktop"},
        {"the desktop's own list first",
         {{at("a.desktop"), entry("a", "")},
          {at("b.desktop"), entry("b", "")},
          {"home/.config/mimeapps.list", "[Default Applications]\nx-scheme-handler/vnc=b.desktop\n"},
          {"home/.config/kde-mimeapps.list", "[Default Applications]\nx-scheme-handler/vnc=a.desktop\n"}},
         {"kde"},
         "a.desktop"},
        {"an entry in a subfolder",
         {{at("kde4/krdc.desktop"), entry("krdc", "")},
          {"etc/xdg/mimeapps.list", "[Default Applications]\nx-scheme-handler/vnc=kde4-krdc.desktop\n"}},
         {},
         "kde4-krdc.desktop"},
        {"an entry without a command",
         {{at("broken.desktop"),
           QStringLiteral("[Desktop Entry]\nType=Application\nMimeType=x-scheme-handler/vnc;\n")}},
         {},
         ""},
        {"a link, not an application",
         {{at("site.desktop"), QStringLiteral("[Desktop Entry]\nType=Link\nExec=x\nMimeType=x-scheme-handler/vnc;\n")}},
         {},
         ""},
    };
    for (const TreeCase& c : cases) {
        QTemporaryDir root;
        writeTree(root.path(), c.files);
        VncXdgDirs dirs = VncXdgDirs::underRoot(root.path());
        dirs.desktops = c.desktops;
        const auto viewer = VncSchemeHandler::find(dirs);
        EXPECT_EQ(viewer ? viewer->desktopId : QString(), c.expectedId) << c.what;
    }
}

TEST(DesktopExec, FieldCodesAndQuotesMakeTheCommandLine)
{
    const QStringList url{QStringLiteral("vnc://host:5901")};
    const struct {
        const char* exec;
        QStringList urls;
        QStringList expected;
    } cases[] = {
        {"remmina %U", url, {"remmina", "vnc://host:5901"}},
        {"remmina %U", {}, {"remmina"}},
        {"\"/opt/tiger vnc/bin/vncviewer\" -Shared %u",
         url,
         {"/opt/tiger vnc/bin/vncviewer", "-Shared", "vnc://host:5901"}},
        {"viewer --connect=%u", url, {"viewer", "--connect=vnc://host:5901"}},
        {"viewer %i %c %k 100%%", {}, {"viewer", "100%"}},
        {"sh -c \"echo \\\"hi\\\"\"", {}, {"sh", "-c", "echo \"hi\""}},
        {"viewer \"unclosed", url, {}},
        {"", url, {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(DesktopExec::arguments(QString::fromUtf8(c.exec), c.urls), c.expected) << c.exec;
}
