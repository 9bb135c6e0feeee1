// The command line: the command, its flags and the options that apply to every command.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

struct AppOptions {
    enum class Command { Run, Snapshot, Render, GlobalAddress, Serve, History };
    Command command = Command::Run;
    QString root = QStringLiteral("/"); // --root, else TARVEL_ROOT, else "/"
    QString settingsFile;               // --settings; empty means the per-user file
    bool bar = false;                   // run: the bar window even where a tray exists
    std::optional<int> preferencesTab;  // run: open the preferences on this tab (0 is the top tab)
    bool json = false;                  // snapshot only
    int cycles = 2;                     // snapshot and render
    QString outDir;                     // render only
    double scale = 2.0;                 // render only
    bool panels = false;                // render: also the drop-downs and the preferences window
    QStringList services;               // global-address: echo services to ask, in this order
    QString listen;                     // serve: ADDR:PORT; empty for the default
    QString historyModule;              // history: the module's key in lower case ("cpu")
    qint64 historySeconds = 24 * 3600;  // history: --since, in seconds
    bool csv = false;                   // history: CSV instead of a text table
};

struct OptionsResult {
    std::optional<AppOptions> options; // none when the program should exit
    int exitCode = 0;                  // 2 for bad arguments
    QString message;                   // usage, help or version text for the user
};

// Parses arguments (program name first); environmentRoot is TARVEL_ROOT's value, if any.
OptionsResult parseAppOptions(const QStringList& arguments, const QString& environmentRoot);
