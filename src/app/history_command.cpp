// tarvel history: a module's kept aggregates, printed as a table or as CSV for scripts.
#include "app/commands.h"
#include "history/history_database.h"
#include "history/history_location.h"
#include "history/history_table.h"
#include "history/history_writer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QTextStream>

namespace {

// Minutes read well over a few hours; beyond that an hour a row.
constexpr qint64 kMinuteRowsUpTo = 3 * 3600;

} // namespace

int runHistory(const AppOptions& options, int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    const Resolution resolution = options.historySeconds <= kMinuteRowsUpTo ? Resolution::Minute : Resolution::Hour;
    QList<SeriesHistory> rows;
    const QString path = historyDatabasePath();
    // A monitor that never ran has kept nothing: the header alone, and no file made for it.
    if (QFileInfo::exists(path)) {
        HistoryDatabase database(path);
        if (!database.open()) {
            QTextStream(stderr) << "tarvel: the history in " << path << " cannot be opened\n";
            return 1;
        }
        const auto [first, last] = bucketSpan(resolution, QDateTime::currentMSecsSinceEpoch(), options.historySeconds);
        rows = database.read(options.historyModule, resolution, first, last);
    }
    QTextStream out(stdout);
    out << (options.csv ? historyCsv(rows, resolution) : historyTextTable(rows, resolution));
    return 0;
}
