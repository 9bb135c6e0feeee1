// The global address lookup: the address check, answer reading, the shuffle, and whole lookups
// against a local server.
#include "net/global_ip_services.h"
#include "net/tvl_ret_global_ip_address.h"
#include "net/value_domain_endpoint.h"
#include "prefs/pref_keys.h"
#include "support/local_http_server.h"
#include "support/memory_settings_store.h"

#include <QTest>
#include <gtest/gtest.h>

namespace {

using Response = LocalHttpServer::Response;

struct LookupOutcome {
    GlobalIpResult result;
    int calls = 0;
};

LookupOutcome lookUp(TvlRetGlobalIpAddress& lookup)
{
    LookupOutcome outcome;
    lookup.loadGlobalIpAddress([&outcome](const GlobalIpResult& result) {
        outcome.result = result;
        ++outcome.calls;
    });
    // A safety net only: a lookup that never ends fails here instead of hanging the suite.
    EXPECT_TRUE(QTest::qWaitFor([&] { return outcome.calls > 0; }, 20000));
    return outcome;
}

// An address on this machine where nothing listens.
QString refusedUrl()
{
    LocalHttpServer gone;
    gone.close();
    return gone.url(QStringLiteral("/"));
}

QStringList requestedPaths(const LocalHttpServer& server)
{
    QStringList paths;
    for (const LocalHttpServer::Request& r : server.requests())
        paths.append(QString::fromLatin1(r.path));
    return paths;
}

} // namespace

TEST(GlobalIpLookup, CheckIpAddressIsLooseButRefusesIpv6AndShortAnswers)
{
    const struct {
        const char* text;
        const char* expected;
    } cases[] = {
        {"203.0.113.7\n", "203.0.113.7"},
        {" \t198.51.100.2 \r\n", "198.51.100.2"},
        {"2001:db8::1", ""},
        {"1.2.3.4", ""},     // seven characters
        {"  1.2.3.4  ", ""}, // counted after trimming
        {"abcdefgh", ""},
        // One digit anywhere passes: the check is loose by design.
        {"<p>address 1</p>", "<p>address 1</p>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(TvlRetGlobalIpAddress::checkIpAddress(QString::fromUtf8(c.text)), QString::fromUtf8(c.expected))
            << c.text;
}

TEST(GlobalIpLookup, AnswersGiveAnAddressOnlyFromA200WithABody)
{
    const QByteArray json = R"({"origin": "198.51.100.2, 10.0.0.1"})";
    const struct {
        QByteArray data;
        int status;
        const char* mime;
        const char* error;
        const char* ip;
    } cases[] = {
        {"203.0.113.7\n", 200, "text/plain", "", "203.0.113.7"},
        {json, 200, "application/json", "", "198.51.100.2"},
        {json, 200, "text/javascript", "", "198.51.100.2"},
        // The same JSON read as text holds a ":" and is refused.
        {json, 200, "text/plain", "", ""},
        {R"({"ip": "198.51.100.2"})", 200, "application/json", "", ""},
        {"not json", 200, "application/json", "", ""},
        {"203.0.113.7", 404, "text/plain", "", ""},
        {"", 200, "text/plain", "", ""},
        {"", 0, "", "Connection refused", ""},
    };
    for (const auto& c : cases) {
        const GlobalIpResult r = TvlRetGlobalIpAddress::retGlobalIpRes(c.data, c.status, QString::fromLatin1(c.mime),
                                                                       QString::fromLatin1(c.error));
        EXPECT_EQ(r.ip, QString::fromLatin1(c.ip)) << c.data.constData() << " " << c.status;
        EXPECT_EQ(r.er, QString::fromLatin1(c.error)) << c.data.constData() << " " << c.status;
    }
}

TEST(GlobalIpLookup, ShuffleSwapsFromTheLastDownWithIndicesOverTheWholeList)
{
    QList<quint32> bounds;
    QList<quint32> draws = {0, 3, 0};
    const auto scripted = [&](quint32 bound) {
        bounds.append(bound);
        return draws.takeFirst();
    };
    // i = 3 swaps with 0: d b c a; i = 2 with 3: d b a c; i = 1 with 0: b d a c.
    EXPECT_EQ(TvlRetGlobalIpAddress::shuffled({"a", "b", "c", "d"}, scripted), QStringList({"b", "d", "a", "c"}));
    EXPECT_EQ(bounds, QList<quint32>({4, 4, 4}));

    bounds.clear();
    EXPECT_EQ(TvlRetGlobalIpAddress::shuffled({"only"}, scripted), QStringList({"only"}));
    EXPECT_EQ(TvlRetGlobalIpAddress::shuffled({}, scripted), QStringList());
    EXPECT_TRUE(bounds.isEmpty());
}

TEST(GlobalIpLookup, BuiltInTableHasEighteenServicesAndTheProvidersEcho)
{
    const QStringList table = GlobalIpServices::builtInServiceList();
    ASSERT_EQ(table.size(), 18);
    EXPECT_EQ(table.at(13), QLatin1String(ValueDomainEndpoint::kBaseUrl) + QLatin1String("/cgi-bin/dyn.fcg?ip"));
    QStringList unique = table;
    EXPECT_EQ(unique.removeDuplicates(), 0);

    MemorySettingsStore store;
    EXPECT_EQ(GlobalIpServices::serviceList(store), table);
    store.setArray(PrefKey::GlobalIpServiceList, {QString()});
    EXPECT_EQ(GlobalIpServices::serviceList(store), table);
}

TEST(GlobalIpLookup, AsksInTurnUntilAnAnswerPasses)
{
    LocalHttpServer server;
    server.route("/v6", Response{200, "text/plain", "2001:db8::1\n"});
    server.route("/short", Response{200, "text/plain", "1.2.3.4"});
    server.route("/missing", Response{404, "text/plain", "203.0.113.9"});
    server.route("/json", Response{200, "application/json", R"({"origin": "198.51.100.2, 10.0.0.1"})"});
    server.route("/text", Response{200, "text/plain", "203.0.113.7\n"});
    TvlRetGlobalIpAddress lookup(QStringList{server.url("/v6"), server.url("/short"), server.url("/missing"),
                                             server.url("/json"), server.url("/text")});
    const LookupOutcome outcome = lookUp(lookup);
    EXPECT_EQ(outcome.calls, 1);
    EXPECT_EQ(outcome.result.ip, QStringLiteral("198.51.100.2"));
    EXPECT_EQ(outcome.result.er, QString());
    EXPECT_EQ(requestedPaths(server), QStringList({"/v6", "/short", "/missing", "/json"}));
    EXPECT_EQ(server.requests().front().method, QByteArray("GET"));
}

TEST(GlobalIpLookup, AServiceSlowerThanTheTimeOutIsPassedOver)
{
    LocalHttpServer server;
    server.route("/slow", Response{200, "text/plain", "203.0.113.1", 5000});
    server.route("/text", Response{200, "text/plain", "203.0.113.7"});
    TvlRetGlobalIpAddress lookup(QStringList{server.url("/slow"), server.url("/text")});
    lookup.setRequestTimeoutMs(200);
    EXPECT_EQ(lookUp(lookup).result.ip, QStringLiteral("203.0.113.7"));
}

TEST(GlobalIpLookup, WhenAllFailTheLastResultIsGiven)
{
    LocalHttpServer server;
    server.route("/missing", Response{404, "text/html", "<p>gone</p>"});
    server.route("/v6", Response{200, "text/plain", "2001:db8::1"});
    // A refused connection last leaves its error; a 404 last leaves none.
    TvlRetGlobalIpAddress refusedLast(QStringList{server.url("/missing"), refusedUrl()});
    const LookupOutcome refused = lookUp(refusedLast);
    EXPECT_EQ(refused.calls, 1);
    EXPECT_TRUE(refused.result.ip.isEmpty());
    EXPECT_FALSE(refused.result.er.isEmpty());

    TvlRetGlobalIpAddress missingLast(QStringList{refusedUrl(), server.url("/v6"), server.url("/missing")});
    const LookupOutcome missing = lookUp(missingLast);
    EXPECT_EQ(missing.calls, 1);
    EXPECT_TRUE(missing.result.ip.isEmpty());
    EXPECT_TRUE(missing.result.er.isEmpty());
}

TEST(GlobalIpLookup, TheSettingsListIsShuffledForEachLookup)
{
    LocalHttpServer server;
    server.route("/a", Response{200, "text/plain", "2001:db8::a"});
    server.route("/b", Response{200, "text/plain", "203.0.113.7"});
    MemorySettingsStore store;
    store.setArray(PrefKey::GlobalIpServiceList, {server.url("/a"), server.url("/b")});
    TvlRetGlobalIpAddress lookup(store);
    // i = 1 swaps with 1 (no change), then with 0: the second lookup asks b first.
    QList<quint32> draws = {1, 0};
    lookup.setRandomSource([&](quint32) { return draws.takeFirst(); });
    EXPECT_EQ(lookUp(lookup).result.ip, QStringLiteral("203.0.113.7"));
    EXPECT_EQ(lookUp(lookup).result.ip, QStringLiteral("203.0.113.7"));
    EXPECT_EQ(requestedPaths(server), QStringList({"/a", "/b", "/b"}));
}
