// The update check: the version comparison, the two notices, and fetches from a local server.
#include "net/notifier.h"
#include "net/tvl_classes_update.h"
#include "net/update_settings.h"
#include "prefs/pref_keys.h"
#include "support/local_http_server.h"
#include "support/memory_settings_store.h"
#include "toolkit/localization.h"

#include "recording_notifier.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

using Response = LocalHttpServer::Response;

// Runs one check against the stored address and returns what it answered.
int runCheck(MemorySettingsStore& store, RecordingNotifier& notifier, const QString& ownVersion)
{
    int found = -1;
    TvlClasses::updateCheck(store, notifier, ownVersion, [&](int result) { found = result; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return found >= 0; }, 20000)); // a safety net, not a timing
    return found;
}

} // namespace

TEST(UpdateCheck, OnlyASixDigitNewerVersionIsAnnounced)
{
    const struct {
        QByteArray data;
        const char* own;
        const char* announced;
    } cases[] = {
        {"060512", "6.5.12", ""},      {"060513", "6.5.12", "6.5.13"},
        {"070001", "6.5.12", "7.0.1"}, {"060412", "6.5.12", ""},
        {"060500", "6.5", ""}, // two parts: 60500
        {"060501", "6.5", "6.5.1"},    {"060001", "6", "6.0.1"},
        {"60513", "6.5.12", ""},   // five characters
        {"0605130", "6.5.12", ""}, // seven characters
        {"060513\n", "6.5.12", ""},    {"", "6.5.12", ""},
        {"abcdef", "6.5.12", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TvlClasses::updateCheckDetail(c.data, QString::fromLatin1(c.own)), QString::fromLatin1(c.announced))
            << c.data.constData() << " against " << c.own;
}

TEST(UpdateCheck, ANewerVersionIsAnnouncedWithDownloadAndRecorded)
{
    LocalHttpServer server;
    server.route("/ver6.dat", Response{200, "application/octet-stream", "060513"});
    MemorySettingsStore store;
    store.setString(PrefKey::UpdateVersionFileURL, server.url("/ver6.dat"));
    RecordingNotifier notifier;
    EXPECT_EQ(runCheck(store, notifier, QStringLiteral("6.5.12")), 1);

    ASSERT_EQ(notifier.received().size(), 1);
    const UserNotification notice = notifier.received().front();
    EXPECT_EQ(notice.title, localized("New version available"));
    EXPECT_EQ(notice.text, QStringLiteral("now ver : 6.5.12\nnew ver : 6.5.13"));
    EXPECT_EQ(notice.tag, QLatin1String(UserNotifTag::UpdateExists));
    ASSERT_EQ(notice.actions.size(), 2);
    EXPECT_EQ(notice.actions.at(0).first, QLatin1String(TvlClasses::kDownloadAction));
    EXPECT_EQ(notice.actions.at(0).second, localized("Download"));
    EXPECT_EQ(notice.actions.at(1).second, localized("Cancel"));
    EXPECT_TRUE(store.boolForKey(PrefKey::UpdateAlerting));
    EXPECT_GE(store.saves, 1);
}

TEST(UpdateCheck, NoNewerVersionOrNoAnswerSaysNoUpdate)
{
    LocalHttpServer server;
    server.route("/same.dat", Response{200, "text/plain", "060512"});
    server.route("/missing.dat", Response{404, "text/html", "<h1>060513</h1>"});
    LocalHttpServer down;
    down.close();
    for (const QString& address : {server.url("/same.dat"), server.url("/missing.dat"), down.url("/ver6.dat")}) {
        MemorySettingsStore store;
        store.setString(PrefKey::UpdateVersionFileURL, address);
        RecordingNotifier notifier;
        EXPECT_EQ(runCheck(store, notifier, QStringLiteral("6.5.12")), 0) << address.toStdString();
        ASSERT_EQ(notifier.received().size(), 1) << address.toStdString();
        EXPECT_EQ(notifier.received().front().title, localized("No update available"));
        EXPECT_EQ(notifier.received().front().tag, QLatin1String(UserNotifTag::NoUpdate));
        EXPECT_FALSE(store.boolForKey(PrefKey::UpdateAlerting));
    }
}

TEST(UpdateCheck, AnEmptyAddressSaysSoInsteadOfFetching)
{
    MemorySettingsStore store;
    EXPECT_EQ(UpdateSettings::versionFileUrl(store), QLatin1String(UpdateSettings::kDefaultVersionFileUrl));
    EXPECT_EQ(UpdateSettings::downloadPageUrl(store), QLatin1String(UpdateSettings::kDefaultDownloadPageUrl));
    store.setString(PrefKey::UpdateVersionFileURL, QString());
    RecordingNotifier notifier;
    EXPECT_EQ(runCheck(store, notifier, QStringLiteral("6.5.12")), 0);
    ASSERT_EQ(notifier.received().size(), 1);
    EXPECT_EQ(notifier.received().front().text, localized("No address is set for the version file."));
}
