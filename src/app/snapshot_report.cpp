// Formats the newest samples for scripts (JSON) and people (text).
#include "app/snapshot_report.h"

#include "app/app_delegate.h"
#include "modules/cpu/cpu_usage_text.h"
#include "prefs/pref_keys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

bool moduleOn(const AppDelegate& app, ModuleId id)
{
    return app.chkGeneBool(moduleKeys(id).switchKey);
}

QJsonArray cpuSampleJson(const CpuSample& sample)
{
    QJsonArray records;
    for (const CpuRecord& r : sample)
        records.append(QJsonArray{static_cast<qint64>(r[CpuUser]), static_cast<qint64>(r[CpuSystem]),
                                  static_cast<qint64>(r[CpuNice]), static_cast<qint64>(r[CpuIdle])});
    return records;
}

QString cpuText(const AppDelegate& app)
{
    QString out = QStringLiteral("CPU\n");
    const auto& history = app.infoDict().cpu;
    if (history.empty()) {
        out += QStringLiteral("  no sample yet\n");
    } else {
        const CpuSample& newest = history.back();
        out += QStringLiteral("  all    ") + cpuUsageText(newest.back()) + QLatin1Char('\n');
        for (std::size_t i = 0; i + 1 < newest.size(); ++i)
            out += QStringLiteral("  cpu%1 ").arg(i, -3) + cpuUsageText(newest[i]) + QLatin1Char('\n');
    }
    const QStringList options = app.loadInfo().cpuGetOptionData();
    static const char* const labels[] = {"up", "awake", "tasks", "load", "host"};
    for (qsizetype i = 0; i < options.size() && i < 5; ++i)
        out += QStringLiteral("  %1 %2\n").arg(QString::fromLatin1(labels[i]), -6).arg(options.at(i));
    return out;
}

} // namespace

namespace SnapshotReport {

QString text(const AppDelegate& app)
{
    QString out;
    if (moduleOn(app, ModuleId::Cpu))
        out += cpuText(app);
    return out;
}

QByteArray json(const AppDelegate& app)
{
    QJsonObject root;
    if (moduleOn(app, ModuleId::Cpu) && !app.infoDict().cpu.empty())
        root.insert(QLatin1String(moduleKeys(ModuleId::Cpu).historyKey), cpuSampleJson(app.infoDict().cpu.back()));
    return QJsonDocument(root).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace SnapshotReport
