// Runs the monitor's bar window (or, with --tray, its tray items in trayer) beside the least the
// same can cost (tarvel_bar_floor) on one virtual screen, and the monitor's text view (no display)
// beside them; reads all three once a second, and prints the processor time and memory of each,
// the monitor's share over the floor, and how their memory grows.
#include "modules/module_registry.h"
#include "prefs/module_id.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <vector>

namespace {

constexpr int kWarmUpSeconds = 5;

struct Options {
    QString tarvel;
    int seconds = 90;
    QString display; // empty: the first free one from :90 on
    bool tray = false;
    QStringList tarvelArguments;
};

std::optional<Options> parseOptions(const QStringList& args)
{
    Options options;
    for (int i = 1; i < args.size(); ++i) {
        const QString& arg = args.at(i);
        if (arg == QLatin1String("--seconds") && i + 1 < args.size())
            options.seconds = std::max(4, args.at(++i).toInt());
        else if (arg == QLatin1String("--tray"))
            options.tray = true;
        else if (arg == QLatin1String("--display") && i + 1 < args.size())
            options.display = args.at(++i);
        else if (arg == QLatin1String("--")) {
            options.tarvelArguments = args.mid(i + 1);
            break;
        } else if (options.tarvel.isEmpty() && !arg.startsWith(QLatin1Char('-')))
            options.tarvel = arg;
        else
            return std::nullopt;
    }
    if (options.tarvel.isEmpty())
        return std::nullopt;
    return options;
}

// Run time in nanoseconds of every thread of the process, from the scheduler's own account.
qint64 runTimeNs(qint64 pid)
{
    qint64 total = 0;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(task + QStringLiteral("/schedstat")));
        if (file.open(QIODevice::ReadOnly))
            total += file.readAll().split(' ').value(0).toLongLong();
    }
    return total;
}

// A field of smaps_rollup in KiB; -1 when the process is gone.
qint64 memoryKiB(qint64 pid, const QByteArray& field)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith(QByteArray(field + ':')))
            return line.mid(field.size() + 1).trimmed().split(' ').value(0).toLongLong();
    }
    return -1;
}

struct Reading {
    qint64 runNs = 0;
    qint64 residentKiB = 0;
    // The process's own memory: anonymous pages (heap, stacks, pictures). Library pages count as
    // "private" in the kernel's sense whenever no other process maps them, so they are left out.
    qint64 privateKiB = 0;
};

Reading readProcess(qint64 pid)
{
    return {runTimeNs(pid), memoryKiB(pid, "Rss"), memoryKiB(pid, "Anonymous")};
}

// First-run settings with the budget's conditions: every module that samples does so every
// second, and the preferences window stays closed.
void writeBudgetSettings(const QString& path)
{
    PlistSettingsStore store(path);
    for (const ModuleSchema* schema : allModuleSchemas())
        PrefFunctions::initializeModulePreference(*schema, store);
    store.setString(PrefKey::AppVersion, QStringLiteral(TARVEL_VERSION));
    store.setBool(PrefKey::DisplayTopWindowAtStartup, false);
    for (const ModuleSchema* schema : allModuleSchemas()) {
        if (schema->intervalKey != nullptr)
            store.setInteger(schema->intervalKey, 1);
    }
    store.synchronize();
}

QString freeDisplay()
{
    for (int n = 90; n < 200; ++n) {
        if (!QFileInfo::exists(QStringLiteral("/tmp/.X11-unix/X%1").arg(n)) &&
            !QFileInfo::exists(QStringLiteral("/tmp/.X%1-lock").arg(n)))
            return QStringLiteral(":%1").arg(n);
    }
    return {};
}

// Starts the virtual screen and waits for its socket; false when it does not come up.
bool startScreen(QProcess& xvfb, const QString& display)
{
    xvfb.start(QStringLiteral("Xvfb"),
               {display, QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("1280x800x24"),
                QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!xvfb.waitForStarted())
        return false;
    const QString socket = QStringLiteral("/tmp/.X11-unix/X") + display.mid(1);
    for (int wait = 0; wait < 100 && !QFileInfo::exists(socket); ++wait)
        QThread::msleep(100);
    return QFileInfo::exists(socket) && xvfb.state() == QProcess::Running;
}

// One measured program and its readings, one a second.
struct Run {
    explicit Run(const char* name)
        : label(name)
    {}
    const char* label;
    QProcess process;
    std::vector<Reading> readings;
};

void printRow(const char* label, double processor, const std::vector<Reading>& r)
{
    const Reading& first = r.front();
    const Reading& middle = r[r.size() / 2];
    const Reading& last = r.back();
    std::printf("%-14s %9.3f %9.1f %+9lld %+9lld %9.1f %+9lld %+9lld\n", label, processor,
                static_cast<double>(last.residentKiB) / 1024,
                static_cast<long long>(last.residentKiB - first.residentKiB),
                static_cast<long long>(last.residentKiB - middle.residentKiB),
                static_cast<double>(last.privateKiB) / 1024, static_cast<long long>(last.privateKiB - first.privateKiB),
                static_cast<long long>(last.privateKiB - middle.privateKiB));
}

void printReport(const Run& floor, const Run& tarvel, const Run& text, int seconds, const QString& display)
{
    const auto processor = [seconds](const Run& run) {
        return static_cast<double>(run.readings.back().runNs - run.readings.front().runNs) / 1e6 / seconds;
    };
    const auto ratio = [](double a, double b) { return b > 0 ? a / b : 0.0; };
    std::printf("%d s on %s, read once a second after %d s of warm-up; every module samples every second\n", seconds,
                qPrintable(display), kWarmUpSeconds);
    std::printf("%-14s %9s %9s %9s %9s %9s %9s %9s\n", "", "cpu ms/s", "rss MiB", "rss run", "rss half", "priv MiB",
                "priv run", "priv half");
    printRow(floor.label, processor(floor), floor.readings);
    printRow(tarvel.label, processor(tarvel), tarvel.readings);
    printRow(text.label, processor(text), text.readings);
    std::printf("%-14s %9.2f %9.2f %9s %9s %9.2f\n", "tarvel/floor", ratio(processor(tarvel), processor(floor)),
                ratio(static_cast<double>(tarvel.readings.back().residentKiB),
                      static_cast<double>(floor.readings.back().residentKiB)),
                "", "",
                ratio(static_cast<double>(tarvel.readings.back().privateKiB),
                      static_cast<double>(floor.readings.back().privateKiB)));
    std::printf("(growth in KiB: \"run\" from the first reading to the last, \"half\" over the second half)\n");
}

// Reads the programs every second for the given time; false when one of them ended.
bool measure(const std::vector<Run*>& runs, int seconds)
{
    QElapsedTimer clock;
    clock.start();
    for (int second = 0; second <= seconds; ++second) {
        const qint64 wait = second * 1000LL - clock.elapsed();
        if (wait > 0)
            QThread::msleep(static_cast<unsigned long>(wait));
        for (Run* run : runs) {
            if (run->process.state() != QProcess::Running)
                return false;
            run->readings.push_back(readProcess(run->process.processId()));
        }
    }
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const auto options = parseOptions(app.arguments());
    if (!options) {
        std::fprintf(stderr,
                     "usage: tarvel_process_budget TARVEL [--seconds N] [--display :N] [--tray]\n"
                     "                             [-- TARVEL ARGUMENTS...]\n"
                     "Runs TARVEL --bar and tarvel_bar_floor on one Xvfb screen (with --tray: TARVEL's tray\n"
                     "items and the floor's tray icons in trayer), and TARVEL's text view\n"
                     "(no display), for N seconds (default 90) after %d s of warm-up, every module\n"
                     "sampling every second.\n",
                     kWarmUpSeconds);
        return 2;
    }
    const QString display = options->display.isEmpty() ? freeDisplay() : options->display;
    QProcess xvfb;
    if (display.isEmpty() || !startScreen(xvfb, display)) {
        std::fprintf(stderr, "no virtual screen could be started on %s\n", qPrintable(display));
        return 1;
    }

    QTemporaryDir home;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("DISPLAY"), display);
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), home.filePath(QStringLiteral("config")));
    QDir().mkpath(home.filePath(QStringLiteral("run")));
    QFile::setPermissions(home.filePath(QStringLiteral("run")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.filePath(QStringLiteral("run")));
    // Each monitor has a settings file of its own: both write theirs at launch.
    const QString settings = home.filePath(QStringLiteral("s.plist"));
    const QString textSettings = home.filePath(QStringLiteral("text.plist"));
    writeBudgetSettings(settings);
    writeBudgetSettings(textSettings);

    // The tray: trayer holds it, over XEmbed (no session bus, so no StatusNotifierItem host).
    QProcess trayer;
    if (options->tray) {
        env.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
        trayer.setProcessEnvironment(env);
        trayer.start(QStringLiteral("trayer"), {QStringLiteral("--edge"), QStringLiteral("bottom"),
                                                QStringLiteral("--widthtype"), QStringLiteral("request")});
        if (!trayer.waitForStarted()) {
            std::fprintf(stderr, "trayer could not be started\n");
            return 1;
        }
        QThread::sleep(2);
    }
    Run floor(options->tray ? "floor tray" : "floor");
    Run tarvel(options->tray ? "tarvel tray" : "tarvel --bar");
    Run text("tarvel text");
    const std::vector<Run*> runs{&floor, &tarvel, &text};
    for (Run* run : runs) {
        run->process.setProcessEnvironment(env);
        run->process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }
    // Without a display the monitor shows its text view; into a file it appends its lines.
    QProcessEnvironment noDisplay = env;
    noDisplay.remove(QStringLiteral("DISPLAY"));
    noDisplay.remove(QStringLiteral("WAYLAND_DISPLAY"));
    noDisplay.remove(QStringLiteral("QT_QPA_PLATFORM"));
    text.process.setProcessEnvironment(noDisplay);
    text.process.setStandardOutputFile(QProcess::nullDevice());
    // The floor is told to use the tray; the monitor finds it by itself and is told only --bar.
    const QStringList floorArguments = options->tray ? QStringList{QStringLiteral("--tray")} : QStringList{};
    const QStringList tarvelMode = options->tray ? QStringList{} : QStringList{QStringLiteral("--bar")};
    floor.process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/tarvel_bar_floor"), floorArguments);
    tarvel.process.start(options->tarvel, tarvelMode + QStringList{QStringLiteral("--settings"), settings} +
                                              options->tarvelArguments);
    text.process.start(options->tarvel,
                       QStringList{QStringLiteral("--settings"), textSettings} + options->tarvelArguments);
    const bool started =
        std::all_of(runs.cbegin(), runs.cend(), [](Run* run) { return run->process.waitForStarted(); });
    if (started)
        QThread::sleep(kWarmUpSeconds);
    const bool ran = started && measure(runs, options->seconds);
    for (QProcess* process : {&text.process, &tarvel.process, &floor.process, &trayer, &xvfb}) {
        process->terminate();
        process->waitForFinished();
    }
    if (!ran) {
        std::fprintf(stderr, "a measured program did not start or ended during the run\n");
        return 1;
    }
    printReport(floor, tarvel, text, options->seconds, display);
    return 0;
}
