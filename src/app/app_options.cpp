// Command-line parsing with a usage message and exit status 2 for bad arguments.
#include "app/app_options.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QString usageText()
{
    return QStringLiteral(
        "Usage: tarvel [--root DIR] [--settings FILE] [COMMAND]\n"
        "\n"
        "Without a command, runs the monitor.\n"
        "\n"
        "Commands:\n"
        "  snapshot [--json] [--cycles N]  sample N cycles (default 2) one second apart and print\n"
        "                                  the newest figures of every module that is switched on\n"
        "\n"
        "Options:\n"
        "  --root DIR       read /proc and /sys below DIR instead of / (also TARVEL_ROOT)\n"
        "  --settings FILE  use FILE as the settings store\n"
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
    const QCommandLineOption helpOpt(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption versionOpt(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    parser.addOptions({rootOpt, settingsOpt, jsonOpt, cyclesOpt, helpOpt, versionOpt});
    parser.addPositionalArgument(QStringLiteral("command"), QString());

    if (!parser.parse(arguments))
        return usageError(parser.errorText());
    if (parser.isSet(helpOpt))
        return {std::nullopt, 0, usageText()};
    if (parser.isSet(versionOpt))
        return {std::nullopt, 0, QStringLiteral("tarvel %1\n").arg(QStringLiteral(TARVEL_VERSION))};

    AppOptions options;
    const QStringList positional = parser.positionalArguments();
    if (positional.size() > 1)
        return usageError(QStringLiteral("unexpected argument '%1'").arg(positional.at(1)));
    if (positional.size() == 1) {
        if (positional.front() != QLatin1String("snapshot"))
            return usageError(QStringLiteral("unknown command '%1'").arg(positional.front()));
        options.command = AppOptions::Command::Snapshot;
    }

    const bool snapshot = options.command == AppOptions::Command::Snapshot;
    if (!snapshot && (parser.isSet(jsonOpt) || parser.isSet(cyclesOpt)))
        return usageError(QStringLiteral("--json and --cycles belong to the snapshot command"));
    options.json = parser.isSet(jsonOpt);
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
