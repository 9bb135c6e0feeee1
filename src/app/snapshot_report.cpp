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

const char* const kOptionKeys[] = {"uptime", "awake", "tasks", "load", "host"};

QString cpuText(const AppDelegate& app, const SnapshotReport::CpuPanelRows& panel)
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
    for (qsizetype i = 0; i < options.size() && i < 5; ++i)
        out += QStringLiteral("  %1 %2\n").arg(QString::fromLatin1(kOptionKeys[i]), -6).arg(options.at(i));
    if (!panel.processor.isEmpty())
        out += QStringLiteral("  cpu    ") + panel.processor + QLatin1Char('\n');
    for (const QString& gpu : panel.graphics)
        out += QStringLiteral("  gpu    ") + gpu + QLatin1Char('\n');
    for (qsizetype i = 0; i < panel.processNames.size(); ++i)
        out += QStringLiteral("  %1 %2\n").arg(panel.processValues.value(i), 6).arg(panel.processNames.at(i));
    return out;
}

QJsonObject cpuPanelJson(const AppDelegate& app, const SnapshotReport::CpuPanelRows& panel)
{
    QJsonObject rows;
    const QStringList options = app.loadInfo().cpuGetOptionData();
    for (qsizetype i = 0; i < options.size() && i < 5; ++i)
        rows.insert(QLatin1String(kOptionKeys[i]), options.at(i));
    rows.insert(QLatin1String("processor"), panel.processor);
    rows.insert(QLatin1String("graphics"), QJsonArray::fromStringList(panel.graphics));
    QJsonArray processes;
    for (qsizetype i = 0; i < panel.processNames.size(); ++i)
        processes.append(QJsonObject{{"name", panel.processNames.at(i)}, {"value", panel.processValues.value(i)}});
    rows.insert(QLatin1String("processes"), processes);
    return rows;
}

} // namespace

namespace SnapshotReport {

QString text(const AppDelegate& app, const CpuPanelRows& panel)
{
    QString out;
    if (moduleOn(app, ModuleId::Cpu))
        out += cpuText(app, panel);
    return out;
}

QByteArray json(const AppDelegate& app, const CpuPanelRows& panel)
{
    QJsonObject root;
    if (moduleOn(app, ModuleId::Cpu)) {
        if (!app.infoDict().cpu.empty())
            root.insert(QLatin1String(moduleKeys(ModuleId::Cpu).historyKey), cpuSampleJson(app.infoDict().cpu.back()));
        root.insert(QLatin1String("CPUPanel"), cpuPanelJson(app, panel));
    }
    return QJsonDocument(root).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace SnapshotReport
