// Points the XDG data folders at fixture trees of application entries for one test, then back.
#pragma once

#include "support/fixture_paths.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class DesktopToolDirs {
public:
    // home stands for the user's own folder; dirs for the system's, in order of precedence.
    // Names are folders of fixtures/desktop-tools; an empty home names no folder at all.
    // keepHome leaves the user's folder where the test put it, for the themes it may hold.
    DesktopToolDirs(const QString& home, const QStringList& dirs, bool keepHome = false)
        : home_(qgetenv("XDG_DATA_HOME"))
        , dirs_(qgetenv("XDG_DATA_DIRS"))
    {
        set(home, dirs);
        if (keepHome)
            qputenv("XDG_DATA_HOME", home_);
    }
    ~DesktopToolDirs()
    {
        qputenv("XDG_DATA_HOME", home_);
        qputenv("XDG_DATA_DIRS", dirs_);
    }
    // A desktop with a system monitor, a log viewer and a terminal: every tool switch can be clicked.
    static DesktopToolDirs everyTool()
    {
        return DesktopToolDirs({}, {QStringLiteral("log-viewer"), QStringLiteral("monitor-terminal")}, true);
    }
    DesktopToolDirs(const DesktopToolDirs&) = delete;
    DesktopToolDirs& operator=(const DesktopToolDirs&) = delete;

    static void set(const QString& home, const QStringList& dirs)
    {
        const QString root = QString::fromStdString((projectFixtures() / "desktop-tools").string()) + u'/';
        qputenv("XDG_DATA_HOME", (root + (home.isEmpty() ? QStringLiteral("none") : home)).toUtf8());
        QStringList paths;
        for (const QString& dir : dirs)
            paths << root + dir;
        qputenv("XDG_DATA_DIRS", paths.join(u':').toUtf8());
    }

private:
    QByteArray home_;
    QByteArray dirs_;
};
