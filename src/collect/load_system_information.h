// The collector object: owns the platform sources and the state kept between samples.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/source_set.h"

#include <QString>
#include <QStringList>

#include <mutex>
#include <optional>
#include <vector>

class LoadSystemInformation {
public:
    explicit LoadSystemInformation(SourceSet sources);

    // Tick differences since the previous call, per processor then averaged; empty on the
    // first call and when the ticks cannot be read (the previous ticks are then kept).
    CpuSample loadCpuData();

    // Five lines: time since boot, awake time, threads and processes, load averages, host name.
    QStringList cpuGetOptionData() const;

    // "H:MM:SS", or with a day count in front once a day has passed.
    static QString buildUpTime(double seconds);

    const SourceSet& sources() const { return sources_; }

private:
    SourceSet sources_;
    std::optional<std::vector<ProcessorTicks>> prevCpuInfo;
    std::mutex cpuUsageLock;
};
