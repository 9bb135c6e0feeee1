// The General item's menu: its commands, and the update check answered where no notification
// service runs.
#include "recording_status_bar.h"
#include "support/local_http_server.h"
#include "test_app.h"

#include "prefs/pref_keys.h"

#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

namespace {

QAction* actionNamed(QMenu* menu, const QString& text)
{
    for (QAction* action : menu->actions())
        if (action->text() == text)
            return action;
    return nullptr;
}

} // namespace

TEST(GeneralMenu, ListsTheApplicationsCommands)
{
    RecordingStatusBar bar;
    TestApp t;
    t.launchWithBar(bar);
    QMenu* menu = bar.menus.value(QStringLiteral("General"));
    ASSERT_NE(menu, nullptr);
    QStringList texts;
    for (QAction* action : menu->actions())
        if (!action->isSeparator())
            texts << action->text();
    EXPECT_EQ(texts, (QStringList{QStringLiteral("Preferences..."), QStringLiteral("Check for Updates..."),
                                  QStringLiteral("Visit the Web Site"), QStringLiteral("Open the Settings Folder"),
                                  QStringLiteral("Show Where Tarvel Runs From"), QStringLiteral("Quit")}));
}

TEST(GeneralMenu, UpdateCheckAnswersThroughTheFallbackWithoutANotificationService)
{
    // No session bus here: the answer must reach the front end's own place for messages.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    LocalHttpServer server;
    server.route("/newer.dat", {200, "text/plain", "099999", 0});
    RecordingStatusBar bar;
    TestApp t;
    t.launchWithBar(bar);
    QAction* check = actionNamed(bar.menus.value(QStringLiteral("General")), QStringLiteral("Check for Updates..."));
    ASSERT_NE(check, nullptr);

    t.store().setString(QLatin1String(PrefKey::UpdateVersionFileURL), server.url(QStringLiteral("/newer.dat")));
    check->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&bar] { return !bar.messages.isEmpty(); }, 5000));
    EXPECT_EQ(
        bar.messages.first(),
        QStringLiteral("New version available|now ver : %1\nnew ver : 9.99.99").arg(QStringLiteral(TARVEL_VERSION)));
    EXPECT_TRUE(t.store().boolForKey(QLatin1String(PrefKey::UpdateAlerting)));

    // A server that is gone is not told apart from being up to date.
    server.close();
    check->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&bar] { return bar.messages.size() == 2; }, 5000));
    EXPECT_EQ(bar.messages.last(), QStringLiteral("No update available|"));
}
