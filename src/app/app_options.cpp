// Command-line parsing with a usage message and exit status 2 for bad arguments.
#include "app/app_options.h"

#include "export/listen_address.h"
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
                          "                                  (default 2), and each menu's graph (CPU, Memory,\n"
                          "                                  Network, Disk, Volume) to DIR/<module>-menu.png;\n"
                          "                                  prints the path of each file written\n"
                          "  render --out DIR --panels [--cycles N] [--scale S]\n"
                          "                                  the same, and each open drop-down to\n"
                          "                                  DIR/<module>-dropdown.png, the preferences window's\n"
                          "                                  top and CPU tabs to DIR/preferences-<module>.png\n"
                          "  global-address [--service URL]...\n"
                          "                                  look up the machine's global IPv4 address and print it\n"
                          "                                  (status 1 when no service gives one); each --service\n"
                          "                                  replaces the echo services, asked in the given order\n"
                          "  serve [--listen ADDR:PORT]      sample every second and serve the newest figures to\n"
                          "                                  Prometheus at http://ADDR:PORT/metrics (default\n"
                          "                                  127.0.0.1:9772)\n"
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

// One line saying what is wrong and one pointing at the help: the whole usage would bury it.
OptionsResult usageError(const QString& why)
{
    return {std::nullopt, 2, QStringLiteral("tarvel: %1\nTry 'tarvel --help'.\n").arg(why)};
}

// The parser's complaint in our words: an unknown option as it was typed, dashes and all.
QString parserError(const QCommandLineParser& parser, const QStringList& arguments)
{
    const QStringList unknown = parser.unknownOptionNames();
    if (unknown.isEmpty()) {
        QString text = parser.errorText();
        if (text.endsWith(QLatin1Char('.')))
            text.chop(1);
        return text.isEmpty() ? text : text.front().toLower() + text.mid(1);
    }
    const QString& name = unknown.front();
    for (const QString& argument : arguments.mid(1)) {
        const QString option = argument.section(QLatin1Char('='), 0, 0);
        if (option.startsWith(QLatin1Char('-')) && QStringView(option).mid(option.startsWith(QLatin1String("--")) ? 2 : 1) == name)
            return QStringLiteral("unknown option '%1'").arg(option);
    }
    return QStringLiteral("unknown option '--%1'").arg(name);
}

// "General, CPU, ..., VNC", for telling which names --preferences knows.
QString moduleNames()
{
    QStringList names;
    for (const ModuleSchema* schema : allModuleSchemas())
        names.append(QLatin1String(schema->moduleKey));
    return names.join(QStringLiteral(", "));
}

} // namespace

namespace {

struct OptionSet {
    QCommandLineOption root{QStringLiteral("root"), QString(), QStringLiteral("DIR")};
    QCommandLineOption settings{QStringLiteral("settings"), QString(), QStringLiteral("FILE")};
    QCommandLineOption json{QStringLiteral("json")};
    QCommandLineOption cycles{QStringLiteral("cycles"), QString(), QStringLiteral("N")};
    QCommandLineOption bar{QStringLiteral("bar")};
    QCommandLineOption prefs{QStringLiteral("preferences")};
    QCommandLineOption out{QStringLiteral("out"), QString(), QStringLiteral("DIR")};
    QCommandLineOption scale{QStringLiteral("scale"), QString(), QStringLiteral("S")};
    QCommandLineOption panels{QStringLiteral("panels")};
    QCommandLineOption service{QStringLiteral("service"), QString(), QStringLiteral("URL")};
    QCommandLineOption listen{QStringLiteral("listen"), QString(), QStringLiteral("ADDR:PORT")};
    QCommandLineOption help{QStringList{QStringLiteral("h"), QStringLiteral("help")}};
    QCommandLineOption version{QStringList{QStringLiteral("v"), QStringLiteral("version")}};
};

bool isCommand(const QString& word)
{
    return word == QLatin1String("snapshot") || word == QLatin1String("render") ||
           word == QLatin1String("global-address") || word == QLatin1String("serve");
}

// The command and the tab of --preferences from the positional arguments; an error text or none.
QString readPositional(const QCommandLineParser& parser, const OptionSet& o, AppOptions& options)
{
    QStringList positional = parser.positionalArguments();
    if (parser.isSet(o.prefs)) {
        // The module named after --preferences is its value, not a command.
        options.preferencesTab = 0;
        if (!positional.isEmpty()) {
            if (const auto id = moduleForKey(positional.front())) {
                options.preferencesTab = modulePreferenceTab(*id);
                positional.removeFirst();
            } else if (positional.size() == 1 && !isCommand(positional.front())) {
                return QStringLiteral("no module named '%1' (%2)").arg(positional.front(), moduleNames());
            }
        }
    }
    if (positional.size() > 1)
        return QStringLiteral("unexpected argument '%1'").arg(positional.at(1));
    if (positional.size() == 1) {
        if (positional.front() == QLatin1String("snapshot"))
            options.command = AppOptions::Command::Snapshot;
        else if (positional.front() == QLatin1String("render"))
            options.command = AppOptions::Command::Render;
        else if (positional.front() == QLatin1String("global-address"))
            options.command = AppOptions::Command::GlobalAddress;
        else if (positional.front() == QLatin1String("serve"))
            options.command = AppOptions::Command::Serve;
        else
            return QStringLiteral("unknown command '%1'").arg(positional.front());
    }
    return {};
}

// Each option belongs to some commands only, and numbers have their ranges.
QString readCommandOptions(const QCommandLineParser& parser, const OptionSet& o, AppOptions& options)
{
    const bool snapshot = options.command == AppOptions::Command::Snapshot;
    const bool render = options.command == AppOptions::Command::Render;
    if (!snapshot && parser.isSet(o.json))
        return QStringLiteral("--json belongs to the snapshot command");
    if (!snapshot && !render && parser.isSet(o.cycles))
        return QStringLiteral("--cycles belongs to the snapshot and render commands");
    if (!render && (parser.isSet(o.out) || parser.isSet(o.scale) || parser.isSet(o.panels)))
        return QStringLiteral("--out, --scale and --panels belong to the render command");
    if ((parser.isSet(o.bar) || parser.isSet(o.prefs)) && options.command != AppOptions::Command::Run)
        return QStringLiteral("--bar and --preferences are for running the monitor");
    if (parser.isSet(o.service) && options.command != AppOptions::Command::GlobalAddress)
        return QStringLiteral("--service belongs to the global-address command");
    if (parser.isSet(o.listen) && options.command != AppOptions::Command::Serve)
        return QStringLiteral("--listen belongs to the serve command");
    if (parser.isSet(o.listen)) {
        options.listen = parser.value(o.listen);
        if (!parseListenAddress(options.listen))
            return QStringLiteral("--listen takes ADDR:PORT, such as 127.0.0.1:9772");
    }
    options.services = parser.values(o.service);
    if (options.services.contains(QString()))
        return QStringLiteral("--service takes an address");
    options.bar = parser.isSet(o.bar);
    options.json = parser.isSet(o.json);
    options.panels = parser.isSet(o.panels);
    if (render) {
        options.outDir = parser.value(o.out);
        if (options.outDir.isEmpty())
            return QStringLiteral("render needs --out DIR");
        bool ok = true;
        if (parser.isSet(o.scale))
            options.scale = parser.value(o.scale).toDouble(&ok);
        // Written as a range that holds, so that nan (which compares false) falls outside it.
        if (!ok || !(options.scale >= 0.5 && options.scale <= 8))
            return QStringLiteral("--scale takes a number from 0.5 to 8");
    }
    if (parser.isSet(o.cycles)) {
        bool ok = false;
        options.cycles = parser.value(o.cycles).toInt(&ok);
        if (!ok || options.cycles < 1 || options.cycles > 86400)
            return QStringLiteral("--cycles takes a whole number from 1 to 86400");
    }
    return {};
}

// The tree to read and the settings file; an error text or none.
QString readPaths(const QCommandLineParser& parser, const OptionSet& o, const QString& environmentRoot,
                  AppOptions& options)
{
    const QString root = parser.isSet(o.root) ? parser.value(o.root) : environmentRoot;
    if (!root.isEmpty()) {
        if (!QFileInfo(root).isDir())
            return QStringLiteral("the root '%1' is not a folder").arg(root);
        options.root = root;
    }
    if (parser.isSet(o.settings)) {
        options.settingsFile = parser.value(o.settings);
        if (options.settingsFile.isEmpty() || QFileInfo(options.settingsFile).isDir())
            return QStringLiteral("--settings takes a file name");
    }
    return {};
}

} // namespace

OptionsResult parseAppOptions(const QStringList& arguments, const QString& environmentRoot)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const OptionSet o;
    parser.addOptions({o.root, o.settings, o.json, o.cycles, o.bar, o.prefs, o.out, o.scale, o.panels, o.service,
                       o.listen, o.help, o.version});
    parser.addPositionalArgument(QStringLiteral("command"), QString());

    if (!parser.parse(arguments))
        return usageError(parserError(parser, arguments));
    if (parser.isSet(o.help))
        return {std::nullopt, 0, usageText()};
    if (parser.isSet(o.version))
        return {std::nullopt, 0, QStringLiteral("tarvel %1\n").arg(QStringLiteral(TARVEL_VERSION))};

    AppOptions options;
    for (const auto& step : {readPositional, readCommandOptions}) {
        if (const QString error = step(parser, o, options); !error.isEmpty())
            return usageError(error);
    }
    if (const QString error = readPaths(parser, o, environmentRoot, options); !error.isEmpty())
        return usageError(error);
    return {options, 0, QString()};
}
