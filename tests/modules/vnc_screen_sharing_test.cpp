// Opening a host: through the desktop's opener where a viewer is registered for vnc:, with a
// notification instead where none is.
#include "modules/vnc/vnc_screen_sharing.h"
#include "net/notifier.h"
#include "support/fixture_paths.h"

#include <QDesktopServices>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

class RecordingNotifier final : public Notifier {
public:
    void fireNotification(const UserNotification& notification) override { fired.append(notification); }
    QList<UserNotification> fired;
};

// Stands in for xdg-open: QDesktopServices hands it the vnc: addresses.
class UrlCatcher final : public QObject {
    Q_OBJECT
public:
    UrlCatcher() { QDesktopServices::setUrlHandler(QStringLiteral("vnc"), this, "open"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("vnc")); }
    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl& url) { opened.append(url); }
};

VncXdgDirs fixtureTree(const char* name)
{
    return VncXdgDirs::underRoot(QString::fromStdString((projectFixtures() / "vnc" / name).string()));
}

} // namespace

TEST(VncScreenSharing, RegisteredViewerGetsTheAddress)
{
    UrlCatcher catcher;
    RecordingNotifier notifier;
    EXPECT_TRUE(TvlClasses::goScreenSharingApp(QStringLiteral("vnc://studio.local:5901"), &notifier,
                                               fixtureTree("xdg-registered")));
    EXPECT_EQ(catcher.opened, (QList<QUrl>{QUrl(QStringLiteral("vnc://studio.local:5901"))}));
    EXPECT_TRUE(notifier.fired.isEmpty());
}

TEST(VncScreenSharing, WithoutAViewerTheUserIsTold)
{
    UrlCatcher catcher;
    RecordingNotifier notifier;
    const QString url = QStringLiteral("vnc://studio.local:5901");
    EXPECT_FALSE(TvlClasses::goScreenSharingApp(url, &notifier, fixtureTree("xdg-unregistered")));
    EXPECT_TRUE(catcher.opened.isEmpty());
    ASSERT_EQ(notifier.fired.size(), 1);
    EXPECT_TRUE(notifier.fired.first().text.contains(url)) << notifier.fired.first().text.toStdString();
    EXPECT_TRUE(notifier.fired.first().text.contains(QStringLiteral("vnc:")));

    // The menu's viewer item says the same, without an address.
    EXPECT_FALSE(TvlClasses::openScreenSharing(&notifier, fixtureTree("xdg-unregistered")));
    ASSERT_EQ(notifier.fired.size(), 2);
    EXPECT_FALSE(notifier.fired.last().text.isEmpty());
    // With nowhere to tell, nothing opens and nothing breaks.
    EXPECT_FALSE(TvlClasses::goScreenSharingApp(url, nullptr, fixtureTree("xdg-unregistered")));
}

#include "vnc_screen_sharing_test.moc"
