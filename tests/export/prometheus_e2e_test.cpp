// A real Prometheus scrapes `tarvel serve` every second; what it stores must agree with what
// `tarvel snapshot --json` reports for the same tree.
#include "support/fixture_paths.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrlQuery>

#include <gtest/gtest.h>

#include <unistd.h>

namespace {

// Keeps the tree's processors busy: each one's user ticks grow with the wall clock, one busy
// second per second, however late the timer that writes them fires.
class BusyStat {
public:
    explicit BusyStat(const QString& path)
        : path_(path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            lines_ = file.readAll().split('\n');
        clock_.start();
        QObject::connect(&timer_, &QTimer::timeout, [this] { step(); });
        timer_.start(100);
    }

private:
    void step()
    {
        const qint64 ticks = clock_.elapsed() * sysconf(_SC_CLK_TCK) / 1000;
        QList<QByteArray> lines = lines_;
        for (QByteArray& line : lines) {
            if (!line.startsWith("cpu"))
                continue;
            QList<QByteArray> fields = line.split(' ');
            const bool machine = line.startsWith("cpu "); // "cpu  2000": two spaces, both processors
            const qsizetype user = machine ? 2 : 1;
            fields[user] = QByteArray::number(fields[user].toLongLong() + ticks * (machine ? 2 : 1));
            line = fields.join(' ');
        }
        // Overwritten in place, never truncated first: the collector keeps the file open, and
        // the figures only grow, so the text never gets shorter.
        QFile file(path_);
        if (file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            file.write(lines.join('\n'));
    }

    QString path_;
    QList<QByteArray> lines_;
    QElapsedTimer clock_;
    QTimer timer_;
};

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress(QHostAddress::LocalHost), 0);
    return probe.serverPort();
}

QJsonArray queryPrometheus(quint16 port, const QString& expression)
{
    QNetworkAccessManager manager;
    QUrl url(QStringLiteral("http://127.0.0.1:%1/api/v1/query").arg(port));
    url.setQuery(QUrlQuery{{QStringLiteral("query"), expression}});
    QNetworkReply* reply = manager.get(QNetworkRequest(url));
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(5000, &loop, &QEventLoop::quit);
    loop.exec();
    const QJsonObject answer = QJsonDocument::fromJson(reply->readAll()).object();
    reply->deleteLater();
    return answer.value(QLatin1String("data")).toObject().value(QLatin1String("result")).toArray();
}

double sampleValue(const QJsonValue& result)
{
    return result.toObject().value(QLatin1String("value")).toArray().at(1).toString().toDouble();
}

class PrometheusScrape : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_STRNE(TARVEL_PROMETHEUS, "") << "prometheus is missing: tools/setup.sh installs it";
        ASSERT_TRUE(dir_.isValid());
        tree_ = dir_.filePath(QStringLiteral("tree"));
        const QString source = QString::fromStdString((projectFixtures() / "linux" / "small-machine").string());
        ASSERT_EQ(QProcess::execute(QStringLiteral("cp"), {QStringLiteral("-r"), source, tree_}), 0);
        // The machine's memory as it is now, kept still, so both readers see the same figures.
        ASSERT_TRUE(QFile::copy(QStringLiteral("/proc/meminfo"), tree_ + QStringLiteral("/proc/meminfo")));
        environment_ = QProcessEnvironment::systemEnvironment();
        environment_.insert(QStringLiteral("HOME"), dir_.path());
        environment_.insert(QStringLiteral("XDG_CONFIG_HOME"), dir_.filePath(QStringLiteral("config")));
        environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    }

    void TearDown() override
    {
        for (QProcess* process : {&prometheus_, &tarvel_}) {
            process->terminate();
            process->waitForFinished(10000);
        }
    }

    QStringList tarvelArguments(const char* settings) const
    {
        return {QStringLiteral("--root"), tree_, QStringLiteral("--settings"), dir_.filePath(QLatin1String(settings))};
    }

    // Starts tarvel serve on a port of its own choosing and returns that port.
    quint16 startServe()
    {
        tarvel_.setProcessEnvironment(environment_);
        tarvel_.start(QStringLiteral(TARVEL_EXECUTABLE),
                      tarvelArguments("serve.plist") + QStringList{QStringLiteral("serve"), QStringLiteral("--listen"),
                                                                   QStringLiteral("127.0.0.1:0")});
        if (!QTest::qWaitFor([&] { return tarvel_.canReadLine() || tarvel_.state() == QProcess::NotRunning; }, 30000))
            return 0;
        const QUrl url(QString::fromUtf8(tarvel_.readLine().trimmed()));
        return static_cast<quint16>(url.port());
    }

    quint16 startPrometheus(quint16 target)
    {
        const quint16 port = freePort();
        QFile config(dir_.filePath(QStringLiteral("prometheus.yml")));
        EXPECT_TRUE(config.open(QIODevice::WriteOnly));
        config.write(QStringLiteral("global:\n  scrape_interval: 1s\n  scrape_timeout: 1s\n  evaluation_interval: 1s\n"
                                    "scrape_configs:\n  - job_name: tarvel\n    static_configs:\n"
                                    "      - targets: ['127.0.0.1:%1']\n")
                         .arg(target)
                         .toUtf8());
        config.close();
        prometheus_.setProcessChannelMode(QProcess::MergedChannels);
        prometheus_.start(QStringLiteral(TARVEL_PROMETHEUS),
                          {QStringLiteral("--config.file=") + config.fileName(),
                           QStringLiteral("--storage.tsdb.path=") + dir_.filePath(QStringLiteral("tsdb")),
                           QStringLiteral("--web.listen-address=127.0.0.1:%1").arg(port)});
        return port;
    }

    // `tarvel snapshot --json` of the same tree, with its own settings.
    QJsonObject snapshot()
    {
        QProcess process;
        process.setProcessEnvironment(environment_);
        process.start(QStringLiteral(TARVEL_EXECUTABLE),
                      tarvelArguments("snapshot.plist") + QStringList{QStringLiteral("snapshot"),
                                                                      QStringLiteral("--json"),
                                                                      QStringLiteral("--cycles"), QStringLiteral("3")});
        // The event loop turns meanwhile, so the processors stay busy during the snapshot too.
        if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 60000))
            return {};
        return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    }

    QTemporaryDir dir_;
    QString tree_;
    QProcessEnvironment environment_;
    QProcess tarvel_;
    QProcess prometheus_;
};

} // namespace

TEST_F(PrometheusScrape, StoredFiguresAgreeWithTheSnapshot)
{
    BusyStat busy(tree_ + QStringLiteral("/proc/stat"));
    const quint16 tarvelPort = startServe();
    ASSERT_NE(tarvelPort, 0) << tarvel_.readAllStandardError().constData();
    const quint16 port = startPrometheus(tarvelPort);

    // Three successful scrapes (up is 1 only when the OpenMetrics text parsed).
    const QString scrapes = QStringLiteral("sum_over_time(up{job=\"tarvel\"}[1m])");
    const bool scraped = QTest::qWaitFor(
        [&] {
            const QJsonArray result = queryPrometheus(port, scrapes);
            return !result.isEmpty() && sampleValue(result.first()) >= 3;
        },
        90000);
    ASSERT_TRUE(scraped) << prometheus_.readAll().right(2000).constData();

    // rate() divides by the whole window: it means a busy share only once the window is full.
    const QString windowFull =
        QStringLiteral("count_over_time(tarvel_cpu_seconds_total{cpu=\"0\",mode=\"user\"}[10s])");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] {
            const QJsonArray result = queryPrometheus(port, windowFull);
            return !result.isEmpty() && sampleValue(result.first()) >= 10;
        },
        90000));

    const QJsonArray rates =
        queryPrometheus(port, QStringLiteral("rate(tarvel_cpu_seconds_total{mode=\"user\"}[10s])"));
    const QJsonArray freeMemory = queryPrometheus(port, QStringLiteral("tarvel_memory_bytes{kind=\"free\"}"));
    const QJsonObject report = snapshot();

    // Each processor's user seconds per second, against its ticks over one snapshot cycle.
    const QJsonArray cpu = report.value(QLatin1String("CPU")).toArray();
    ASSERT_EQ(cpu.size(), 3) << QJsonDocument(report).toJson().constData();
    ASSERT_EQ(rates.size(), 2);
    const double ticksPerSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
    for (const QJsonValue& series : rates) {
        const int processor =
            series.toObject().value(QLatin1String("metric")).toObject().value(QLatin1String("cpu")).toString().toInt();
        const double snapshotRate = cpu.at(processor).toArray().at(0).toDouble() / ticksPerSecond;
        EXPECT_NEAR(sampleValue(series), 1.0, 0.3) << "cpu " << processor;
        EXPECT_NEAR(sampleValue(series), snapshotRate, 0.3) << "cpu " << processor;
    }
    const QJsonArray memory = report.value(QLatin1String("Memory")).toArray();
    ASSERT_EQ(freeMemory.size(), 1);
    ASSERT_GT(memory.size(), 3);
    EXPECT_DOUBLE_EQ(sampleValue(freeMemory.first()),
                     memory.at(3).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)));
}
