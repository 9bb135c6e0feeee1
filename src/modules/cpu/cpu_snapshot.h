// The CPU module's part of the snapshot report: usage per processor and the panel's rows.
#pragma once

#include "collect/process_list.h"
#include "modules/module_descriptor.h"

#include <QStringList>

class CpuSnapshot final : public ModuleSnapshot {
public:
    explicit CpuSnapshot(LoadSystemInformation& loadInfo);

    // Every cycle scans the processes, so the last scan's shares cover the last interval.
    void cycleFinished() override;
    QString text(const SnapshotContext& context) override;
    void addJson(const SnapshotContext& context, QJsonObject& root) override;

private:
    LoadSystemInformation& loadInfo_;
    ProcessDict names_;
    QStringList processNames_;  // busiest first
    QStringList processValues_; // their shares, one per name
};
