// The installed desktop applications by program and window class, rebuilt only when their folders change.
#pragma once

#include "collect/desktop_entry.h"

#include <QHash>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <optional>
#include <utility>
#include <vector>

class DesktopIndex {
public:
    // dataDirs in order of precedence; each one's "applications" folder is read.
    explicit DesktopIndex(QStringList dataDirs = xdgDataDirs(), QLocale locale = QLocale());

    // XDG_DATA_HOME then XDG_DATA_DIRS, with the usual defaults when they are unset.
    static QStringList xdgDataDirs();

    // Re-reads the desktop files when a folder was added, removed or changed since the
    // last look. Files are replaced by renaming when packages install them, which changes
    // their folder; an edit in place goes unseen until something else changes there.
    void refresh();

    // The display name for a program, matched without regard to case against Exec's program,
    // then StartupWMClass, then the desktop file id; empty when no shown entry matches.
    [[nodiscard]] std::optional<QString> nameFor(const QString& program) const;
    // The whole entry that nameFor takes the name from.
    [[nodiscard]] std::optional<DesktopEntry> entryFor(const QString& program) const;

    // How many times the files were read, for checking that unchanged folders are not.
    [[nodiscard]] int buildCount() const { return builds_; }

private:
    using Stamps = std::vector<std::pair<std::filesystem::path, std::filesystem::file_time_type>>;
    Stamps currentStamps() const;
    void rebuild();

    QStringList dataDirs_;
    QLocale locale_;
    QHash<QString, DesktopEntry> byProgram_;
    QHash<QString, DesktopEntry> byWmClass_;
    QHash<QString, DesktopEntry> byId_;
    Stamps stamps_;
    std::vector<std::filesystem::path> folders_; // every folder read at the last build
    bool built_ = false;
    int builds_ = 0;
};
