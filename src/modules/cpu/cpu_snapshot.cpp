// The CPU figures of the snapshot report, as the menu bar and the CPU panel show them.
#include "modules/cpu/cpu_snapshot.h"

#include "collect/load_system_information.h"
#include "modules/cpu/cpu_option_texts.h"
#include "modules/cpu/cpu_panel_facts.h"
#include "modules/cpu/cpu_usage_text.h"

#include <QJsonArray>

namespace {

const char* const kOptionKeys[] = {"uptime", "awake", "tasks", "load", "host"};

QJsonArray cpuSampleJson(const CpuSample& sample)
{
    QJsonArray records;
    for (const CpuRecord& r : sample)
        records.append(QJsonArray{static_cast<qint64>(r[CpuUser]), static_cast<qint64>(r[CpuSystem]),
                                  static_cast<qint64>(r[CpuNice]), static_cast<qint64>(r[CpuIdle])});
    return records;
}

} // namespace

CpuSnapshot::CpuSnapshot(LoadSystemInformation& loadInfo)
    : loadInfo_(loadInfo)
    , names_(loadInfo.retProcessDict())
{}

void CpuSnapshot::cycleFinished()
{
    const auto processes = loadInfo_.psGetProccessAsKv(QStringLiteral("%cpu"), names_, 10, -1);
    processNames_.clear();
    processValues_.clear();
    if (processes && processes->size() == 2 && !processes->at(0).isEmpty()) {
        processNames_ = processes->at(0).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        processValues_ = processes->at(1).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
}

QString CpuSnapshot::text(const SnapshotContext& context)
{
    QString out = QStringLiteral("CPU\n");
    const History<CpuSample> history = context.info.history<CpuSample>(context.slot);
    if (history.empty()) {
        out += QStringLiteral("  no sample yet\n");
    } else {
        const CpuSample& newest = history.back();
        out += QStringLiteral("  all    ") + cpuUsageText(newest.back()) + QLatin1Char('\n');
        for (std::size_t i = 0; i + 1 < newest.size(); ++i)
            out += QStringLiteral("  cpu%1 ").arg(i, -3) + cpuUsageText(newest[i]) + QLatin1Char('\n');
    }
    const QStringList options = cpuGetOptionData(loadInfo_.cpuOptionFigures());
    for (qsizetype i = 0; i < options.size() && i < 5; ++i)
        out += QStringLiteral("  %1 %2\n").arg(QString::fromLatin1(kOptionKeys[i]), -6).arg(options.at(i));
    const QString processor = cpuKindText(loadInfo_);
    if (!processor.isEmpty())
        out += QStringLiteral("  cpu    ") + processor + QLatin1Char('\n');
    for (const QString& gpu : gpuRowTexts(loadInfo_))
        out += QStringLiteral("  gpu    ") + gpu + QLatin1Char('\n');
    for (qsizetype i = 0; i < processNames_.size(); ++i)
        out += QStringLiteral("  %1 %2\n").arg(processValues_.value(i), 6).arg(processNames_.at(i));
    return out;
}

void CpuSnapshot::addJson(const SnapshotContext& context, QJsonObject& root)
{
    const History<CpuSample> history = context.info.history<CpuSample>(context.slot);
    if (!history.empty())
        root.insert(QLatin1String(context.key), cpuSampleJson(history.back()));
    QJsonObject rows;
    const QStringList options = cpuGetOptionData(loadInfo_.cpuOptionFigures());
    for (qsizetype i = 0; i < options.size() && i < 5; ++i)
        rows.insert(QLatin1String(kOptionKeys[i]), options.at(i));
    rows.insert(QLatin1String("processor"), cpuKindText(loadInfo_));
    rows.insert(QLatin1String("graphics"), QJsonArray::fromStringList(gpuRowTexts(loadInfo_)));
    QJsonArray processes;
    for (qsizetype i = 0; i < processNames_.size(); ++i)
        processes.append(QJsonObject{{"name", processNames_.at(i)}, {"value", processValues_.value(i)}});
    rows.insert(QLatin1String("processes"), processes);
    root.insert(QLatin1String("CPUPanel"), rows);
}
