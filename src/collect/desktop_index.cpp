// Walks the XDG applications folders and indexes their desktop files.
#include "collect/desktop_index.h"

#include "collect/desktop_entry.h"
#include "toolkit/guarded_file.h"

#include <QDir>
#include <QSet>

#include <algorithm>

namespace {
std::filesystem::path applicationsFolder(const QString& dataDir)
{
    return std::filesystem::path(dataDir.toStdString()) / "applications";
}

// A missing folder has its own stamp, so that one appearing is noticed too.
std::filesystem::file_time_type stampOf(const std::filesystem::path& folder)
{
    std::error_code error;
    const auto time = std::filesystem::last_write_time(folder, error);
    return error ? std::filesystem::file_time_type::min() : time;
}
} // namespace

DesktopIndex::DesktopIndex(QStringList dataDirs, QLocale locale)
    : dataDirs_(std::move(dataDirs))
    , locale_(std::move(locale))
{}

QStringList DesktopIndex::xdgDataDirs()
{
    QString home = qEnvironmentVariable("XDG_DATA_HOME");
    if (home.isEmpty())
        home = QDir::homePath() + QLatin1String("/.local/share");
    QString dirs = qEnvironmentVariable("XDG_DATA_DIRS");
    if (dirs.isEmpty())
        dirs = QStringLiteral("/usr/local/share:/usr/share");
    QStringList all{home};
    all += dirs.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return all;
}

DesktopIndex::Stamps DesktopIndex::currentStamps() const
{
    Stamps stamps;
    stamps.reserve(folders_.size());
    for (const auto& folder : folders_)
        stamps.emplace_back(folder, stampOf(folder));
    return stamps;
}

void DesktopIndex::refresh()
{
    // Compared in place: a refresh comes with every look at the processes.
    const bool unchanged = built_ && std::all_of(stamps_.begin(), stamps_.end(), [](const auto& stamp) {
                               return stampOf(stamp.first) == stamp.second;
                           });
    if (!unchanged)
        rebuild();
}

void DesktopIndex::rebuild()
{
    byProgram_.clear();
    byWmClass_.clear();
    byId_.clear();
    folders_.clear();
    QSet<QString> seenIds;
    for (const QString& dataDir : dataDirs_) {
        const std::filesystem::path top = applicationsFolder(dataDir);
        folders_.push_back(top);
        std::error_code error;
        std::filesystem::recursive_directory_iterator it(top, error), end;
        // Sorted so that which of two clashing files wins does not depend on the directory order.
        std::vector<std::filesystem::path> files;
        for (; !error && it != end; it.increment(error)) {
            if (it->is_directory(error))
                folders_.push_back(it->path());
            else if (it->path().extension() == ".desktop")
                files.push_back(it->path());
        }
        std::sort(files.begin(), files.end());
        for (const auto& file : files) {
            // The id is the path below "applications" with "/" as "-": kde/app.desktop is kde-app.
            QString id = QString::fromStdString(file.lexically_relative(top).replace_extension().generic_string());
            id.replace(QLatin1Char('/'), QLatin1Char('-'));
            id = id.toLower();
            // An earlier folder's file hides a later one of the same id, even a hidden one.
            if (seenIds.contains(id))
                continue;
            seenIds.insert(id);
            // Entries are a few kilobytes; a pipe or a device in their place is skipped unread.
            const std::optional<QByteArray> bytes =
                GuardedFile::readBounded(QString::fromStdString(file.string()), 1024 * 1024);
            if (!bytes)
                continue;
            const auto entry = parseDesktopEntry(QString::fromUtf8(*bytes), locale_);
            if (!entry || !entry->shown)
                continue;
            // Several entries may start one program; the first in precedence names it.
            const auto add = [&](QHash<QString, DesktopEntry>& table, const QString& key) {
                if (!key.isEmpty() && !table.contains(key.toLower()))
                    table.insert(key.toLower(), *entry);
            };
            add(byProgram_, entry->execName);
            add(byWmClass_, entry->wmClass);
            add(byId_, id);
        }
    }
    stamps_ = currentStamps();
    built_ = true;
    ++builds_;
}

std::optional<QString> DesktopIndex::nameFor(const QString& program) const
{
    const auto entry = entryFor(program);
    return entry ? std::optional<QString>(entry->name) : std::nullopt;
}

std::optional<DesktopEntry> DesktopIndex::entryFor(const QString& program) const
{
    const QString key = program.toLower();
    for (const auto* table : {&byProgram_, &byWmClass_, &byId_}) {
        const auto found = table->constFind(key);
        if (found != table->constEnd())
            return *found;
    }
    return std::nullopt;
}
