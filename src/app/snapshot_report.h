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

// The texts the menu bar and the CPU panel show, one block per switched-on module (the raw
// figures for Memory and Network; for Disk and Volume also each disk's and volume's menu block).
QString text(const AppDelegate& app, const CpuPanelRows& panel = {});

// The newest raw sample of each switched-on module under its module key, and the CPU panel's
// rows under "CPUPanel".
QByteArray json(const AppDelegate& app, const CpuPanelRows& panel = {});

} // namespace SnapshotReport
