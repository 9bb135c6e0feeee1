// The two text formats, judged by Prometheus's own tools, and the choice between them.
#include "export/metric_text.h"
#include "export/metrics_builder.h"
#include "export_test_figures.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace {

struct ToolRun {
    int exitCode = -1;
    QByteArray output;
};

ToolRun runTool(const QString& program, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted())
        return {};
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(60000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAll()};
}

MetricFamilies fullFamilies()
{
    MetricsBuilder builder;
    return *builder.update(fullTestFigures());
}

} // namespace

TEST(MetricText, PromtoolAcceptsThePlainFormat)
{
    ASSERT_STRNE(TARVEL_PROMTOOL, "") << "promtool is missing: tools/setup.sh installs Debian's prometheus";
    const QByteArray text = MetricText::plainText(fullFamilies());
    const ToolRun run =
        runTool(QStringLiteral(TARVEL_PROMTOOL), {QStringLiteral("check"), QStringLiteral("metrics")}, text);
    EXPECT_EQ(run.exitCode, 0) << run.output.constData() << "\n---\n" << text.constData();
    // Counters carry _total in both their samples and their TYPE line in this format.
    EXPECT_TRUE(text.contains("# TYPE tarvel_cpu_seconds_total counter\n"));
    EXPECT_TRUE(text.contains("tarvel_cpu_seconds_total{cpu=\"0\",mode=\"user\"} 0.5\n"));
    EXPECT_TRUE(text.contains(
        "tarvel_volume_size_bytes{mountpoint=\"/media/My \\\"Disk\\\"\",name=\"Mein\\\\Laufwerk\"} 1000\n"));
    EXPECT_FALSE(text.contains("# EOF"));
}

TEST(MetricText, OpenMetricsParserAcceptsTheOpenMetricsFormat)
{
    ASSERT_STRNE(TARVEL_DEBIAN_PYTHON, "") << "python3 is missing";
    const QByteArray text = MetricText::openMetrics(fullFamilies());
    const ToolRun run = runTool(QStringLiteral(TARVEL_DEBIAN_PYTHON), {QStringLiteral(TARVEL_OPENMETRICS_CHECK)}, text);
    ASSERT_EQ(run.exitCode, 0) << run.output.constData() << "\n---\n" << text.constData();
    // The parser's view: family name without _total, the unit, the number of samples.
    EXPECT_TRUE(run.output.contains("tarvel_cpu_seconds counter seconds 8\n")) << run.output.constData();
    EXPECT_TRUE(run.output.contains("tarvel_memory_bytes gauge bytes 7\n")) << run.output.constData();
    EXPECT_TRUE(run.output.contains("tarvel_network_receive_bytes counter bytes 2\n")) << run.output.constData();
    EXPECT_TRUE(run.output.contains("tarvel_temperature_celsius gauge celsius 2\n")) << run.output.constData();
    EXPECT_TRUE(run.output.contains("tarvel_load1 gauge  1\n")) << run.output.constData();
    EXPECT_TRUE(text.endsWith("# EOF\n"));
}

TEST(MetricText, EmptySetsAreStillValid)
{
    EXPECT_EQ(MetricText::plainText({}), QByteArray());
    EXPECT_EQ(MetricText::openMetrics({}), QByteArray("# EOF\n"));
}

TEST(MetricText, AcceptHeaderChoosesTheFormat)
{
    // What Prometheus 2.42 sends.
    EXPECT_TRUE(MetricText::wantsOpenMetrics("application/openmetrics-text;version=1.0.0,application/openmetrics-text;"
                                             "version=0.0.1;q=0.75,text/plain;version=0.0.4;q=0.5,*/*;q=0.1"));
    EXPECT_TRUE(MetricText::wantsOpenMetrics("Application/OpenMetrics-Text; version=1.0.0"));
    EXPECT_FALSE(MetricText::wantsOpenMetrics(""));
    EXPECT_FALSE(MetricText::wantsOpenMetrics("*/*"));
    EXPECT_FALSE(MetricText::wantsOpenMetrics("text/plain;version=0.0.4"));
    EXPECT_FALSE(MetricText::wantsOpenMetrics("application/openmetrics-text;q=0,text/plain"));
    EXPECT_FALSE(MetricText::wantsOpenMetrics("application/openmetrics-text;q=0.5,text/plain;q=0.5"));
    EXPECT_FALSE(MetricText::wantsOpenMetrics("application/openmetrics-text;q=bad"));
}
