// tarvel global-address run as the built program against a local server: output and status.
#include "prefs/plist_settings_store.h"
#include "prefs/pref_keys.h"
#include "program_run.h"
#include "support/local_http_server.h"

#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace {
using Response = LocalHttpServer::Response;
} // namespace

TEST(GlobalAddressCommand, PrintsTheFirstAddressThatPasses)
{
    LocalHttpServer server;
    server.route("/v6", Response{200, "text/plain", "2001:db8::1\n"});
    server.route("/text", Response{200, "text/plain", "203.0.113.7\n"});
    const ProgramRun run =
        runTarvel({"global-address", "--service", server.url("/v6"), "--service", server.url("/text")});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_EQ(run.out, QByteArray("203.0.113.7\n"));
    ASSERT_EQ(server.requests().size(), 2);
    EXPECT_EQ(server.requests().at(0).path, QByteArray("/v6"));
}

TEST(GlobalAddressCommand, SaysWhyAndFailsWhenNoneAnswers)
{
    LocalHttpServer server;
    server.route("/missing", Response{404, "text/plain", "203.0.113.7"});
    const ProgramRun run = runTarvel({"global-address", "--service", server.url("/missing")});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.out.isEmpty());
    EXPECT_TRUE(run.err.contains("no service answered")) << run.err.constData();
}

TEST(GlobalAddressCommand, WithoutServicesTheSettingsListIsAsked)
{
    LocalHttpServer server;
    server.route("/json", Response{200, "application/json", R"({"origin": "198.51.100.2, 10.0.0.1"})"});
    QTemporaryDir dir;
    const QString settings = dir.filePath(QStringLiteral("settings.plist"));
    {
        PlistSettingsStore store(settings);
        store.setArray(PrefKey::GlobalIpServiceList, {server.url("/json")});
        ASSERT_TRUE(store.synchronize());
    }
    const ProgramRun run = runTarvel({"--settings", settings, "global-address"});
    EXPECT_EQ(run.exitCode, 0) << run.err.constData();
    EXPECT_EQ(run.out, QByteArray("198.51.100.2\n"));
}
