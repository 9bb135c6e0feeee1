// Notifications over a private session bus: shown with their buttons, choices come back by tag,
// and a bus without a notification service is told apart without blocking.
#include "net/dbus_notifier.h"
#include "notification_service.h"
#include "support/private_session_bus.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <thread>

TEST(DBusNotifier, ShowsNotificationsAndReportsTheChosenAction)
{
    PrivateSessionBus bus;
    ASSERT_TRUE(bus.started());
    DBusNotifier notifier(bus.connect(QStringLiteral("tarvel")));
    EXPECT_FALSE(notifier.available());

    NotificationService service;
    ASSERT_TRUE(service.registerOn(bus.connect(QStringLiteral("service"))));
    EXPECT_TRUE(notifier.available());

    notifier.fireNotification({QStringLiteral("No update available"), {}, QLatin1String(UserNotifTag::NoUpdate), {}});
    notifier.fireNotification({QStringLiteral("New version available"), QStringLiteral("now ver : 6.0.0\nnew ver : 6.0.1"),
                               QLatin1String(UserNotifTag::UpdateExists),
                               {{QStringLiteral("download"), QStringLiteral("Download")},
                                {QStringLiteral("cancel"), QStringLiteral("Cancel")}}});
    ASSERT_TRUE(QTest::qWaitFor([&service] { return service.shown.size() == 2; }, 5000));
    EXPECT_EQ(service.shown.at(1).body, QStringLiteral("now ver : 6.0.0\nnew ver : 6.0.1"));
    EXPECT_EQ(service.shown.at(1).actions,
              (QStringList{QStringLiteral("download"), QStringLiteral("Download"), QStringLiteral("cancel"),
                           QStringLiteral("Cancel")}));

    // Only notifications with buttons are remembered; a choice on another id is not ours.
    QSignalSpy chosen(&notifier, &Notifier::actionInvoked);
    QTest::qWait(100); // the reply carrying the id arrives after the call
    service.invoke(1, QStringLiteral("default"));
    service.invoke(2, QStringLiteral("download"));
    ASSERT_TRUE(chosen.wait(5000));
    ASSERT_EQ(chosen.size(), 1);
    EXPECT_EQ(chosen.at(0).at(0).toString(), QLatin1String(UserNotifTag::UpdateExists));
    EXPECT_EQ(chosen.at(0).at(1).toString(), QStringLiteral("download"));
}

TEST(DBusNotifier, NotificationsFromAWorkerThreadArrive)
{
    PrivateSessionBus bus;
    ASSERT_TRUE(bus.started());
    NotificationService service;
    ASSERT_TRUE(service.registerOn(bus.connect(QStringLiteral("service"))));
    DBusNotifier notifier(bus.connect(QStringLiteral("tarvel")));
    std::thread worker([&notifier] { notifier.fireNotification({QStringLiteral("Line 01"), {}, {}, {}}); });
    worker.join();
    ASSERT_TRUE(QTest::qWaitFor([&service] { return service.shown.size() == 1; }, 5000));
    EXPECT_EQ(service.shown.first().summary, QStringLiteral("Line 01"));
}
