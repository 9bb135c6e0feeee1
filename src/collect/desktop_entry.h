// Reads the facts of a .desktop file needed to name a running program or start an application.
#pragma once

#include <QLocale>
#include <QString>
#include <QStringView>

#include <optional>

struct DesktopEntry {
    QString name;      // Name in the locale's language where the file has it
    QString exec;      // the Exec line as written, field codes and all
    QString execName;  // file name of the program Exec starts, without its folder
    QString wmClass;   // StartupWMClass
    bool shown = true; // false for NoDisplay or Hidden entries
};

// Only the [Desktop Entry] group counts. Empty when the file has no such group or describes
// something other than an application (a link or a folder).
std::optional<DesktopEntry> parseDesktopEntry(QStringView text, const QLocale& locale);
