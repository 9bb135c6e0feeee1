// Runs the monitor for a while and prints its processor time per second and its memory.
#include "modules/module_registry.h"
#include "prefs/module_id.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>

namespace {

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

// A field of smaps_rollup in KiB.
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

// The process's own memory: anonymous pages (heap, stacks, pictures). Library pages count as
// "private" in the kernel's sense whenever no other process maps them, so they are left out.
qint64 privateKiB(qint64 pid)
{
    return memoryKiB(pid, "Anonymous");
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

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: tarvel_process_budget TARVEL [SECONDS] [TARVEL ARGUMENTS...]\n"
                             "Runs TARVEL offscreen in its bar window (default 120 s after 5 s of warm-up),\n"
                             "every module sampling every second.\n");
        return 2;
    }
    const int seconds = args.size() > 2 ? std::max(10, args.at(2).toInt()) : 120;
    QTemporaryDir home;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_DATA_HOME"), home.filePath(QStringLiteral("data")));
    const QString settings = home.filePath(QStringLiteral("s.plist"));
    writeBudgetSettings(settings);
    QStringList tarvelArgs{QStringLiteral("--bar"), QStringLiteral("--settings"), settings};
    tarvelArgs += args.mid(3);

    QProcess tarvel;
    tarvel.setProcessEnvironment(env);
    tarvel.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tarvel.start(args.at(1), tarvelArgs);
    if (!tarvel.waitForStarted())
        return 1;
    const qint64 pid = tarvel.processId();
    QThread::sleep(5);

    const qint64 start = runTimeNs(pid);
    QThread::sleep(static_cast<unsigned long>(seconds / 2));
    const qint64 rssMid = memoryKiB(pid, "Rss");
    const qint64 privateMid = privateKiB(pid);
    QThread::sleep(static_cast<unsigned long>(seconds - seconds / 2));
    const qint64 end = runTimeNs(pid);
    const qint64 rss = memoryKiB(pid, "Rss");
    const qint64 priv = privateKiB(pid);
    tarvel.terminate();
    tarvel.waitForFinished();

    std::printf("processor   %.3f ms per second over %d s\n", static_cast<double>(end - start) / 1e6 / seconds,
                seconds);
    std::printf("resident    %.1f MiB (%+lld KiB over the second half)\n", static_cast<double>(rss) / 1024,
                static_cast<long long>(rss - rssMid));
    std::printf("private     %.1f MiB (%+lld KiB over the second half)\n", static_cast<double>(priv) / 1024,
                static_cast<long long>(priv - privateMid));
    return 0;
}
