// The snapshot command's report of the newest figures, as text or JSON.
#pragma once

#include <QByteArray>
#include <QString>

class AppDelegate;

namespace SnapshotReport {

// The texts the menu bar shows, one block per switched-on module.
QString text(const AppDelegate& app);

// The newest raw sample of each switched-on module under its module key.
QByteArray json(const AppDelegate& app);

} // namespace SnapshotReport
