// Formats the newest samples for scripts (JSON) and people (text).
#include "app/snapshot_report.h"

#include "app/app_delegate.h"
#include "app/volume_tracker.h"
#include "modules/cpu/cpu_usage_text.h"
#include "modules/disk/disk_menu_rows.h"
#include "modules/memory/memory_breakdown.h"
#include "modules/network/network_rates.h"
#include "modules/volume/volume_menu_rows.h"
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

const char* const kMemoryFigures[] = {"wired",    "active",      "inactive",   "free",        "pageins",
                                      "pageouts", "speculative", "compressor", "application", "cached"};

QJsonArray memorySampleJson(const MemorySample& sample)
{
    QJsonArray figures;
    for (std::int64_t figure : sample)
        figures.append(static_cast<qint64>(figure));
    return figures;
}

QJsonObject networkSampleJson(const NetworkSample& sample)
{
    QJsonObject object{{"to_up", static_cast<qint64>(sample.toUp)},
                       {"to_dw", static_cast<qint64>(sample.toDw)},
                       {"int", sample.interval}};
    for (const InterfacePackets& p : sample.packets) {
        object.insert(QString::fromStdString(p.name) + QLatin1String("_up"), static_cast<qint64>(p.up));
        object.insert(QString::fromStdString(p.name) + QLatin1String("_dw"), static_cast<qint64>(p.dw));
    }
    return object;
}

// The menu-bar text, then the raw page counts the picture is drawn from.
QString memoryText(AppDelegate& app)
{
    QString out = QStringLiteral("Memory\n");
    const auto& history = app.infoDict().memory;
    if (history.empty())
        return out + QStringLiteral("  no sample yet\n");
    const ModuleDefaults& memory = app.defaults(ModuleId::Memory);
    const std::size_t pageSize = app.loadInfo().memoryPageSize();
    const auto totals = app.collector().memoryTotals();
    const MemoryBreakdown parts = memoryBreakdown(history.back(), totals ? totals->totalPages : 0,
                                                  memory.boolValue(PrefKey::Memory_TradMemoryInfo));
    out += QStringLiteral("  ") +
           memoryBarText(parts, pageSize, static_cast<int>(memory.intValue(PrefKey::Memory_Unit))) + QLatin1Char('\n');
    out += QStringLiteral("  pages of %1 bytes, %2 in all\n").arg(pageSize).arg(totals ? totals->totalPages : 0);
    for (std::size_t i = 0; i < history.back().size(); ++i)
        out += QStringLiteral("  %1 %2\n").arg(QString::fromLatin1(kMemoryFigures[i]), -11).arg(history.back()[i]);
    return out;
}

// The menu-bar text, then the raw counters it is worked out from.
QString networkText(const AppDelegate& app)
{
    QString out = QStringLiteral("Network\n");
    const auto& history = app.infoDict().network;
    if (history.empty())
        return out + QStringLiteral("  no sample yet\n");
    const NetworkSample& newest = history.back();
    out += QStringLiteral("  ") +
           networkBarText(currentNetworkRates(history, newest.interval),
                          networkRatesInBits(app.defaults(ModuleId::Network))) +
           QLatin1Char('\n');
    out += QStringLiteral("  sent %1 received %2 bytes, over %3 s\n")
               .arg(newest.toUp)
               .arg(newest.toDw)
               .arg(newest.interval);
    for (const InterfacePackets& p : newest.packets)
        out += QStringLiteral("  %1 %2 packets sent, %3 received\n")
                   .arg(QString::fromStdString(p.name))
                   .arg(p.up)
                   .arg(p.dw);
    return out;
}

// The menu bar's words, then each disk as its menu block shows it.
QString diskText(const AppDelegate& app)
{
    const DiskBaseDict& disks = app.volumeTracker().diskBaseDict();
    const auto& history = app.infoDict().disk;
    const std::vector<StorageBarSet> sets = diskBarSets(diskPictureSettings(app.defaults(ModuleId::Disk)), disks);
    QString out = QStringLiteral("Disk\n  bar    ") + diskBarText(sets, disks, history) + QLatin1Char('\n');
    if (history.size() < 2)
        out += QStringLiteral("  (rates need two samples; sample more cycles)\n");
    for (const auto& [key, disk] : disks) {
        out += QStringLiteral("  ") + diskTitleText(disk) + QLatin1Char('\n');
        for (const QString& line : {diskFactsText(disk), diskRatesText(history, key), diskTotalsText(history, key)})
            if (!line.isEmpty())
                out += QStringLiteral("    ") + line + QLatin1Char('\n');
    }
    return out;
}

// The menu bar's words, then each volume as its menu block shows it.
QString volumeText(const AppDelegate& app)
{
    const VolumeBaseDict& volumes = app.volumeTracker().volumeBaseDict();
    const auto& history = app.infoDict().volume;
    const VolumePictureSettings settings = volumePictureSettings(app.defaults(ModuleId::Volume));
    const std::vector<StorageBarSet> sets = volumeBarSets(settings, volumes);
    QString out = QStringLiteral("Volume\n  bar    ") + volumeBarText(sets, volumes, history, settings.percentKind) +
                  QLatin1Char('\n');
    static const VolumeSample noSample;
    const VolumeSample& newest = history.empty() ? noSample : history.back();
    for (const auto& [path, volume] : volumes)
        out += QStringLiteral("  %1\n    %2\n    %3\n")
                   .arg(volume.volumeName, volumeFactsText(path, volume), volumeUsageText(volumeUsageOf(newest, path)));
    return out;
}

QJsonObject diskSampleJson(const DiskSample& sample)
{
    QJsonObject object{{"int", sample.interval}};
    for (const auto& [key, counters] : sample.devices)
        object.insert(key, QJsonArray{static_cast<qint64>(counters[0]), static_cast<qint64>(counters[1])});
    return object;
}

QJsonObject volumeSampleJson(const VolumeSample& sample)
{
    const auto usage = [](const VolumeUsage& u) {
        return QJsonArray{static_cast<qint64>(u.total), static_cast<qint64>(u.used), static_cast<qint64>(u.free)};
    };
    QJsonObject object;
    for (const auto& [path, volume] : sample.volumes)
        object.insert(path, usage(volume));
    if (sample.all)
        object.insert(QLatin1String("all"), usage(*sample.all));
    return object;
}

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

QString text(AppDelegate& app, const CpuPanelRows& panel)
{
    QString out;
    if (moduleOn(app, ModuleId::Cpu))
        out += cpuText(app, panel);
    if (moduleOn(app, ModuleId::Memory))
        out += memoryText(app);
    if (moduleOn(app, ModuleId::Network))
        out += networkText(app);
    if (moduleOn(app, ModuleId::Disk))
        out += diskText(app);
    if (moduleOn(app, ModuleId::Volume))
        out += volumeText(app);
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
    const InfoDict& info = app.infoDict();
    if (moduleOn(app, ModuleId::Memory) && !info.memory.empty())
        root.insert(QLatin1String(moduleKeys(ModuleId::Memory).historyKey), memorySampleJson(info.memory.back()));
    if (moduleOn(app, ModuleId::Network) && !info.network.empty())
        root.insert(QLatin1String(moduleKeys(ModuleId::Network).historyKey), networkSampleJson(info.network.back()));
    if (moduleOn(app, ModuleId::Disk) && !info.disk.empty())
        root.insert(QLatin1String(moduleKeys(ModuleId::Disk).historyKey), diskSampleJson(info.disk.back()));
    if (moduleOn(app, ModuleId::Volume) && !info.volume.empty())
        root.insert(QLatin1String(moduleKeys(ModuleId::Volume).historyKey), volumeSampleJson(info.volume.back()));
    return QJsonDocument(root).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace SnapshotReport
