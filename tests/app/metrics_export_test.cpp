// The monitor's metrics export end to end: settings switch it, a taken port or a bad address is
// reported without stopping anything, and a scrape sees what the cycle sampled.
#include "support/socket_answer.h"
#include "test_app.h"

#include "app/metrics_export.h"
#include "export/metrics_server.h"
#include "modules/general/metrics_keys.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <unistd.h>

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace PrefKey;

QByteArray scrape(quint16 port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), port);
    socket.write("GET /metrics HTTP/1.1\r\n\r\n");
    return readUntilClosed(socket);
}

// The value of the series named with its labels; NaN when the text has none.
double seriesValue(const QByteArray& text, const QByteArray& series)
{
    const qsizetype at = text.indexOf(QByteArray("\n" + series + ' '));
    if (at < 0)
        return std::nan("");
    const qsizetype start = at + series.size() + 2;
    return text.mid(start, text.indexOf('\n', start) - start).toDouble();
}

void changeAddress(TestApp& t, const QString& address)
{
    t.store().setString(MetricsListenAddress, address);
    t.app->reloadGeneralDefaults(false);
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
}

} // namespace

TEST(MetricsExport, FollowsTheSettingsAndServesWhatTheCycleSampled)
{
    QTcpServer taken;
    ASSERT_TRUE(taken.listen(QHostAddress(QHostAddress::LocalHost), 0));
    TestApp t;
    t.writeSettings([&](SettingsStore& store) {
        store.setBool(MetricsServeEnabled, true);
        store.setString(MetricsListenAddress, QStringLiteral("127.0.0.1:%1").arg(taken.serverPort()));
    });
    t.queueTicks({{100, 100, 0, 200}, {200, 100, 0, 100}});
    t.queueTicks({{150, 100, 0, 250}, {200, 130, 0, 170}});
    t.launch();
    MetricsExport metrics(*t.app);
    metrics.followSettings();
    EXPECT_FALSE(metrics.server().isListening());
    EXPECT_TRUE(metrics.status().contains(QString::number(taken.serverPort()))) << metrics.status().toStdString();
    t.executor->finishCycle();

    // A free port: served from the next cycle on, with the cycle's own figures.
    changeAddress(t, QStringLiteral("127.0.0.1:0"));
    ASSERT_TRUE(metrics.server().isListening()) << metrics.status().toStdString();
    EXPECT_TRUE(metrics.status().contains(QStringLiteral("/metrics")));
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    const QByteArray text = scrape(metrics.server().port());
    const double ticksPerSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
    EXPECT_DOUBLE_EQ(seriesValue(text, "tarvel_cpu_seconds_total{cpu=\"0\",mode=\"user\"}"), 50 / ticksPerSecond)
        << text.constData();
    EXPECT_DOUBLE_EQ(seriesValue(text, "tarvel_cpu_seconds_total{cpu=\"1\",mode=\"system\"}"), 30 / ticksPerSecond);
    // Load averages are gathered by the cycle only while someone serves them.
    EXPECT_DOUBLE_EQ(seriesValue(text, "tarvel_load1"), 0.5);

    // A malformed address stops serving and says why; the monitor's cycle goes on.
    changeAddress(t, QStringLiteral("not an address"));
    EXPECT_FALSE(metrics.server().isListening());
    EXPECT_TRUE(metrics.status().contains(QStringLiteral("not an address")));
    t.store().setBool(MetricsServeEnabled, false);
    t.app->reloadGeneralDefaults(false);
    t.app->loadSysInfoTimer();
    t.executor->finishCycle();
    EXPECT_TRUE(metrics.status().isEmpty());
}
