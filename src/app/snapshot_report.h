// The snapshot command's report of the newest figures, as text or JSON.
#pragma once

#include "modules/module_descriptor.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <memory>

class AppDelegate;

// Each module that reports has its part, made when the snapshot starts and told of every cycle.
class SnapshotReport {
public:
    explicit SnapshotReport(LoadSystemInformation& loadInfo);
    ~SnapshotReport();

    void cycleFinished();

    // Non-const: modules ask the collector for figures (the memory total).
    // The texts the menu bar and the modules' menus show, one block per switched-on module,
    // with the raw figures under them.
    QString text(AppDelegate& app);
    // The newest raw sample of each switched-on module under its module key, and whatever else
    // a module reports (the CPU panel's rows under "CPUPanel").
    QByteArray json(AppDelegate& app);

private:
    std::array<std::unique_ptr<ModuleSnapshot>, kModuleCount> parts_;
};
