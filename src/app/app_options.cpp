// Command-line parsing with a usage message and exit status 2 for bad arguments.
#include "app/app_options.h"

#include "export/listen_address.h"
#include "modules/history_figures.h"
#include "modules/module_registry.h"

#include <QCommandLineParser>
#include <QHash>
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
                          "  history MODULE [--since SPAN] [--csv]\n"
                          "                                  print the kept minute or hour aggregates (mean, min,\n"
                          "                                  max) of MODULE (cpu, memory, network, disk, volume,\n"
                          "                                  temp, fan) over the last SPAN (Nm, Nh or Nd; default\n"
                          "                                  24h): per minute up to 3h, per hour beyond; the file\n"
                          "                                  is TARVEL_HISTORY_DB when set\n"
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

// The keys of the modules the history keeps, in registry order.
QStringList historyModuleKeys()
{
    QStringList keys;
    for (const ModuleSchema* schema : allModuleSchemas()) {
        if (const QString key = historyModuleKey(schema->id); !key.isEmpty())
            keys.append(key);
    }
    return keys;
}

// "90m", "24h", "7d": a whole number of minutes, hours or days, at most a year and a day.
std::optional<qint64> spanSeconds(const QString& text)
{
    static const QHash<QChar, qint64> units{{u'm', 60}, {u'h', 3600}, {u'd', 86400}};
    if (text.size() < 2 || !units.contains(text.back()))
        return std::nullopt;
    bool ok = false;
    const qint64 count = QStringView(text).chopped(1).toLongLong(&ok);
    if (!ok || count < 1 || count * units.value(text.back()) > 366 * 86400)
        return std::nullopt;
    return count * units.value(text.back());
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
    QCommandLineOption since{QStringLiteral("since"), QString(), QStringLiteral("SPAN")};
    QCommandLineOption csv{QStringLiteral("csv")};
    QCommandLineOption help{QStringList{QStringLiteral("h"), QStringLiteral("help")}};
    QCommandLineOption version{QStringList{QStringLiteral("v"), QStringLiteral("version")}};
};

bool isCommand(const QString& word)
{
    return word == QLatin1String("snapshot") || word == QLatin1String("render") ||
           word == QLatin1String("global-address") || word == QLatin1String("serve") ||
           word == QLatin1String("history");
}

// history MODULE: one of the modules the history keeps.
QString readHistoryPositional(const QStringList& positional, AppOptions& options)
{
    options.command = AppOptions::Command::History;
    const QStringList known = historyModuleKeys();
    if (positional.size() < 2)
        return QStringLiteral("history needs a module (%1)").arg(known.join(QStringLiteral(", ")));
    if (positional.size() > 2)
        return QStringLiteral("unexpected argument '%1'").arg(positional.at(2));
    options.historyModule = positional.at(1).toLower();
    if (!known.contains(options.historyModule))
        return QStringLiteral("no history kept for '%1' (%2)").arg(positional.at(1), known.join(QStringLiteral(", ")));
    return {};
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
    if (!positional.isEmpty() && positional.front() == QLatin1String("history"))
        return readHistoryPositional(positional, options);
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
    if (options.command != AppOptions::Command::History && (parser.isSet(o.since) || parser.isSet(o.csv)))
        return QStringLiteral("--since and --csv belong to the history command");
    options.csv = parser.isSet(o.csv);
    if (parser.isSet(o.since)) {
        const std::optional<qint64> seconds = spanSeconds(parser.value(o.since));
        if (!seconds)
            return QStringLiteral("--since takes a span such as 90m, 24h or 7d");
        options.historySeconds = *seconds;
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
                       o.listen, o.since, o.csv, o.help, o.version});
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
