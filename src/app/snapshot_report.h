// The snapshot command's report of the newest figures, as text or JSON.
#pragma once

#include <QByteArray>
#include <QString>

#include <QStringList>

class AppDelegate;

namespace SnapshotReport {

// The CPU panel's rows that take a machine query or a measured interval; empty ones are left out.
struct CpuPanelRows {
    QString processor;
    QStringList graphics;
    QStringList processNames;  // busiest first
    QStringList processValues; // their shares, one per name
};

// The texts the menu bar and the CPU panel show, one block per switched-on module, with the raw
// figures of Memory and Network under theirs and each disk's and volume's menu block under
// Disk and Volume. Non-const: the memory total is asked of the collector.
QString text(AppDelegate& app, const CpuPanelRows& panel = {});

// The newest raw sample of each switched-on module under its module key, and the CPU panel's
// rows under "CPUPanel".
QByteArray json(const AppDelegate& app, const CpuPanelRows& panel = {});

} // namespace SnapshotReport
