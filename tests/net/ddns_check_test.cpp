// The dynamic DNS check end to end against a local update endpoint: what is sent, what the user
// is told, and when nothing happens at all.
#include "net/general_functions_ddns.h"
#include "prefs/pref_keys.h"
#include "support/local_http_server.h"
#include "support/memory_settings_store.h"
#include "toolkit/localization.h"

#include "recording_notifier.h"

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <gtest/gtest.h>

namespace {

using Response = LocalHttpServer::Response;

constexpr char kUpdatePath[] = "/cgi-bin/dyn.fcg";
const QString kPassword = QStringLiteral("pw1-Secret");

QString ja(const char* key)
{
    return localized(key);
}

class DdnsCheck : public ::testing::Test {
protected:
    DdnsCheck()
    {
        options.endpointBase = server.url(QString());
        server.route(kUpdatePath, Response{200, "text/plain", "status=0\nOK\n"});
    }

    void setLines(const QStringList& lines) { store.setString(PrefKey::DdnsPropertyString, lines.join('\n')); }

    // Waits for the check's report, which must come once and on this thread.
    QString waitFor(const std::function<void(GeneralFunctions::DdnsFinished)>& start)
    {
        int calls = 0;
        QString outcome;
        start([&](const QString& text) {
            EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
            outcome = text;
            ++calls;
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, 30000)); // a safety net, not a timing
        EXPECT_EQ(calls, 1);
        EXPECT_FALSE(outcome.contains(kPassword));
        return outcome;
    }

    QString check(const QString& address, bool forced)
    {
        return waitFor([&](GeneralFunctions::DdnsFinished done) {
            GeneralFunctions::checkGlobalIpAddressForDdns(address, forced, store, notifier, options, std::move(done));
        });
    }

    void expectNoPassword() const
    {
        for (const UserNotification& n : notifier.received()) {
            EXPECT_FALSE(n.title.contains(kPassword)) << "a title shows the password";
            EXPECT_FALSE(n.text.contains(kPassword)) << "a text shows the password";
        }
    }

    LocalHttpServer server;
    MemorySettingsStore store;
    RecordingNotifier notifier;
    DdnsCheckOptions options;
};

} // namespace

TEST_F(DdnsCheck, AnUpdateLineSendsItsFieldsAsTypedAfterTheAddressIsStored)
{
    setLines({"valuedomain&nas&home.example&" + kPassword});
    store.setString(PrefKey::NowGlobalIpAddr, QStringLiteral("198.51.100.1"));
    QString storedWhenAsked;
    int savesWhenAsked = -1;
    server.onRequest([&](const LocalHttpServer::Request&) {
        storedWhenAsked = store.stringForKey(PrefKey::NowGlobalIpAddr);
        savesWhenAsked = store.saves;
    });
    const QString outcome = check(QStringLiteral("203.0.113.7"), false);

    ASSERT_EQ(server.requests().size(), 1);
    EXPECT_EQ(server.requests().front().path, QByteArray(kUpdatePath));
    EXPECT_EQ(server.requests().front().query,
              QByteArray("d=home.example&p=" + kPassword.toLatin1() + "&h=nas&i=203.0.113.7"));
    EXPECT_EQ(storedWhenAsked, QStringLiteral("203.0.113.7"));
    EXPECT_EQ(savesWhenAsked, 1);
    ASSERT_EQ(notifier.received().size(), 1);
    EXPECT_EQ(notifier.received().front().title, ja("更新に成功しました"));
    EXPECT_EQ(notifier.received().front().text, QStringLiteral("203.0.113.7 -> nas.home.example"));
    EXPECT_TRUE(outcome.contains(QStringLiteral("203.0.113.7")));
    expectNoPassword();
}

TEST_F(DdnsCheck, TheServicesAnswerBecomesTheTitle)
{
    setLines({"valuedomain&nas&home.example&" + kPassword});
    const struct {
        Response response;
        QString title;
    } cases[] = {
        {Response{200, "text/plain", "status=2\n"}, ja("不正なドメインとパスワードです")},
        {Response{200, "text/plain", "status=7\n"}, ja("Unknown Error")},
        {Response{500, "text/plain", "status=0\n"}, ja("Unknown Error")},
    };
    int round = 0;
    for (const auto& c : cases) {
        server.route(kUpdatePath, c.response);
        check(QStringLiteral("203.0.113.%1").arg(++round), false);
        ASSERT_EQ(notifier.received().size(), round);
        EXPECT_EQ(notifier.received().back().title, c.title) << c.response.body.constData();
    }
    expectNoPassword();
}

TEST_F(DdnsCheck, AnUnreachableServiceIsReportedWithoutThePassword)
{
    setLines({"valuedomain&nas&home.example&" + kPassword});
    server.close();
    check(QStringLiteral("203.0.113.7"), false);
    ASSERT_EQ(notifier.received().size(), 1);
    EXPECT_TRUE(notifier.received().front().title.startsWith(QStringLiteral("[0] ")))
        << notifier.received().front().title.toStdString();
    expectNoPassword();
}

TEST_F(DdnsCheck, AForcedRunReportsEveryLineAndAnUnforcedOneOnlyUpdatesAndConfirmations)
{
    setLines({"valuedomain&nas&home.example&" + kPassword, "# my records", "tarvel&confirm", "", "nonsense",
              "valuedomain&nas&&" + kPassword, "other&x", "tarvel&confirm&again", "#", "#", "#", "#"});
    const QString update = ja("更新に成功しました");
    const QString changed = ja("Global IP Address changed.");
    const QStringList forcedTitles = {update,
                                      ja("Comment out"),
                                      changed,
                                      ja("Blank line"),
                                      ja("Invalid Parameter"),
                                      QStringLiteral("Some error occurred (valuedomain)"),
                                      QStringLiteral("Some error occurred (other)"),
                                      QStringLiteral("Some error occurred (tarvel)"),
                                      ja("Comment out"),
                                      ja("Comment out"),
                                      ja("Comment out"),
                                      ja("Comment out")};
    check(QStringLiteral("203.0.113.7"), true);
    EXPECT_EQ(notifier.titles(), forcedTitles);
    const QList<UserNotification> forced = notifier.received();
    ASSERT_EQ(forced.size(), 12);
    EXPECT_EQ(forced.at(1).text, QStringLiteral("Line 02"));
    EXPECT_EQ(forced.at(2).text, QString(ja("(No Record)") + QStringLiteral(" -> 203.0.113.7")));
    EXPECT_EQ(forced.at(3).text, QStringLiteral("Line 04"));
    EXPECT_EQ(forced.at(11).text, QStringLiteral("Line 12"));
    EXPECT_EQ(server.requests().size(), 1);

    check(QStringLiteral("203.0.113.8"), false);
    const QList<UserNotification> all = notifier.received();
    ASSERT_EQ(all.size(), 14);
    EXPECT_EQ(all.at(12).title, update);
    EXPECT_EQ(all.at(13).title, changed);
    EXPECT_EQ(all.at(13).text, QStringLiteral("203.0.113.7 -> 203.0.113.8"));
    EXPECT_EQ(server.requests().size(), 2);
    expectNoPassword();
}

TEST_F(DdnsCheck, TheSameAddressSendsAndTellsNothingEvenWhenForced)
{
    setLines({"valuedomain&nas&home.example&" + kPassword, "tarvel&confirm", ""});
    store.setString(PrefKey::NowGlobalIpAddr, QStringLiteral("203.0.113.7"));
    for (const bool forced : {false, true}) {
        const QString outcome = check(QStringLiteral("203.0.113.7"), forced);
        EXPECT_TRUE(outcome.contains(QStringLiteral("203.0.113.7")));
    }
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_TRUE(notifier.received().isEmpty());
    EXPECT_EQ(store.saves, 0);
}

TEST_F(DdnsCheck, TheWholeCheckLooksUpTheAddressAndAForcedRunForgetsTheRecord)
{
    setLines({"tarvel&confirm", "valuedomain&nas&home.example&" + kPassword});
    store.setString(PrefKey::NowGlobalIpAddr, QStringLiteral("203.0.113.7"));
    server.route("/echo", Response{200, "text/plain", "203.0.113.7\n"});
    options.lookupServices = QStringList{server.url("/v6-only"), server.url("/echo")};
    server.route("/v6-only", Response{200, "text/plain", "2001:db8::1"});

    waitFor([&](auto done) { GeneralFunctions::runDdnsCheck(store, notifier, false, options, std::move(done)); });
    EXPECT_TRUE(notifier.received().isEmpty());

    waitFor([&](auto done) { GeneralFunctions::forcedExecutionDdns(store, notifier, options, std::move(done)); });
    ASSERT_EQ(notifier.received().size(), 2);
    EXPECT_EQ(notifier.received().at(0).text, QString(ja("(No Record)") + QStringLiteral(" -> 203.0.113.7")));
    EXPECT_EQ(notifier.received().at(1).title, ja("更新に成功しました"));
    EXPECT_EQ(store.stringForKey(PrefKey::NowGlobalIpAddr), QStringLiteral("203.0.113.7"));
    expectNoPassword();
}

TEST_F(DdnsCheck, NoAddressFoundMeansNoComparison)
{
    setLines({"tarvel&confirm"});
    store.setString(PrefKey::NowGlobalIpAddr, QStringLiteral("198.51.100.1"));
    options.lookupServices = QStringList{server.url("/v6-only")};
    server.route("/v6-only", Response{200, "text/plain", "2001:db8::1"});
    waitFor([&](auto done) { GeneralFunctions::runDdnsCheck(store, notifier, true, options, std::move(done)); });
    EXPECT_EQ(store.stringForKey(PrefKey::NowGlobalIpAddr), QStringLiteral("198.51.100.1"));
    EXPECT_TRUE(notifier.received().isEmpty());
}
