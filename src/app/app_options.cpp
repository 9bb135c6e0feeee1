// Command-line parsing with a usage message and exit status 2 for bad arguments.
#include "app/app_options.h"

#include "modules/module_registry.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QString usageText()
{
    return QStringLiteral("Usage: tarvel [--root DIR] [--settings FILE] [--bar] [--preferences [MODULE]] | COMMAND\n"
                          "\n"
                          "Without a command, runs the monitor: in the system tray, in a bar window at the top of\n"
                          "the screen where there is no tray (or with --bar), or as live text lines where there is\n"
                          "no display.\n"
                          "\n"
                          "Commands:\n"
                          "  snapshot [--json] [--cycles N]  sample N cycles (default 2) one second apart and print\n"
                          "                                  the newest figures of every module that is switched on\n"
                          "  render --out DIR [--cycles N] [--scale S]\n"
                          "                                  sample N cycles (default 2), then write each module's\n"
                          "                                  picture to DIR/<module>.png at S pixels per point\n"
                          "                                  (default 2), and the CPU menu's graph to CPU-menu.png\n"
                          "\n"
                          "Options:\n"
                          "  --root DIR       read /proc and /sys below DIR instead of / (also TARVEL_ROOT)\n"
                          "  --settings FILE  use FILE as the settings store\n"
                          "  --bar            show the bar window instead of tray icons\n"
                          "  --preferences [MODULE]\n"
                          "                   open the preferences at start, on MODULE's tab (General, CPU,\n"
                          "                   Memory, Network, Disk, Volume, Temp, Fan or VNC)\n"
                          "  -h, --help       show this text\n"
                          "  -v, --version    show the version\n");
}

OptionsResult usageError(const QString& why)
{
    return {std::nullopt, 2, QStringLiteral("tarvel: %1\n\n").arg(why) + usageText()};
}

} // namespace

OptionsResult parseAppOptions(const QStringList& arguments, const QString& environmentRoot)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption rootOpt(QStringLiteral("root"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption settingsOpt(QStringLiteral("settings"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption jsonOpt(QStringLiteral("json"));
    const QCommandLineOption cyclesOpt(QStringLiteral("cycles"), QString(), QStringLiteral("N"));
    const QCommandLineOption barOpt(QStringLiteral("bar"));
    const QCommandLineOption prefsOpt(QStringLiteral("preferences"));
    const QCommandLineOption outOpt(QStringLiteral("out"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption scaleOpt(QStringLiteral("scale"), QString(), QStringLiteral("S"));
    const QCommandLineOption helpOpt(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption versionOpt(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    parser.addOptions(
        {rootOpt, settingsOpt, jsonOpt, cyclesOpt, barOpt, prefsOpt, outOpt, scaleOpt, helpOpt, versionOpt});
    parser.addPositionalArgument(QStringLiteral("command"), QString());

    if (!parser.parse(arguments))
        return usageError(parser.errorText());
    if (parser.isSet(helpOpt))
        return {std::nullopt, 0, usageText()};
    if (parser.isSet(versionOpt))
        return {std::nullopt, 0, QStringLiteral("tarvel %1\n").arg(QStringLiteral(TARVEL_VERSION))};

    AppOptions options;
    QStringList positional = parser.positionalArguments();
    if (parser.isSet(prefsOpt)) {
        // The module named after --preferences is its value, not a command.
        options.preferencesTab = 0;
        if (!positional.isEmpty()) {
            if (const auto id = moduleForKey(positional.front())) {
                options.preferencesTab = modulePreferenceTab(*id);
                positional.removeFirst();
            }
        }
    }
    if (positional.size() > 1)
        return usageError(QStringLiteral("unexpected argument '%1'").arg(positional.at(1)));
    if (positional.size() == 1) {
        if (positional.front() == QLatin1String("snapshot"))
            options.command = AppOptions::Command::Snapshot;
        else if (positional.front() == QLatin1String("render"))
            options.command = AppOptions::Command::Render;
        else
            return usageError(QStringLiteral("unknown command '%1'").arg(positional.front()));
    }

    const bool snapshot = options.command == AppOptions::Command::Snapshot;
    const bool render = options.command == AppOptions::Command::Render;
    if (!snapshot && parser.isSet(jsonOpt))
        return usageError(QStringLiteral("--json belongs to the snapshot command"));
    if (!snapshot && !render && parser.isSet(cyclesOpt))
        return usageError(QStringLiteral("--cycles belongs to the snapshot and render commands"));
    if (!render && (parser.isSet(outOpt) || parser.isSet(scaleOpt)))
        return usageError(QStringLiteral("--out and --scale belong to the render command"));
    if ((parser.isSet(barOpt) || parser.isSet(prefsOpt)) && options.command != AppOptions::Command::Run)
        return usageError(QStringLiteral("--bar and --preferences are for running the monitor"));
    options.bar = parser.isSet(barOpt);
    options.json = parser.isSet(jsonOpt);
    if (render) {
        options.outDir = parser.value(outOpt);
        if (options.outDir.isEmpty())
            return usageError(QStringLiteral("render needs --out DIR"));
        if (parser.isSet(scaleOpt)) {
            bool ok = false;
            options.scale = parser.value(scaleOpt).toDouble(&ok);
            if (!ok || options.scale < 0.5 || options.scale > 8)
                return usageError(QStringLiteral("--scale takes a number from 0.5 to 8"));
        }
    }
    if (parser.isSet(cyclesOpt)) {
        bool ok = false;
        options.cycles = parser.value(cyclesOpt).toInt(&ok);
        if (!ok || options.cycles < 1 || options.cycles > 86400)
            return usageError(QStringLiteral("--cycles takes a whole number from 1 to 86400"));
    }

    const QString root = parser.isSet(rootOpt) ? parser.value(rootOpt) : environmentRoot;
    if (!root.isEmpty()) {
        if (!QFileInfo(root).isDir())
            return usageError(QStringLiteral("the root '%1' is not a folder").arg(root));
        options.root = root;
    }
    if (parser.isSet(settingsOpt)) {
        options.settingsFile = parser.value(settingsOpt);
        if (options.settingsFile.isEmpty() || QFileInfo(options.settingsFile).isDir())
            return usageError(QStringLiteral("--settings takes a file name"));
    }
    return {options, 0, QString()};
}
