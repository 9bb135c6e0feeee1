// Reads mimeapps.list files and desktop entries; runs no program, so it can be tried on a tree.
#include "net/vnc_scheme_handler.h"

#include "toolkit/key_file.h"

#include <QDirIterator>
#include <QHash>
#include <QSet>

namespace VncSchemeHandler {
namespace {

const QString kEntryGroup = QStringLiteral("Desktop Entry");

struct Entry {
    VncViewerApp app;
    QStringList mimeTypes;
    bool usable = false; // an application that is neither hidden nor without a command
};

// Every desktop entry by id; an entry of a folder earlier in the search masks later ones of
// the same id, hidden or not.
struct Installed {
    QHash<QString, Entry> byId;
    QStringList order;

    explicit Installed(const QStringList& dataDirs)
    {
        for (const QString& dataDir : dataDirs) {
            const QString folder = dataDir + QStringLiteral("/applications");
            QStringList ids;
            QDirIterator it(folder, {QStringLiteral("*.desktop")}, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                const QString path = it.next();
                const QString id = path.mid(folder.size() + 1).replace(QLatin1Char('/'), QLatin1Char('-'));
                if (!byId.contains(id)) {
                    byId.insert(id, read(id, path));
                    ids.append(id);
                }
            }
            ids.sort();
            order += ids;
        }
    }

    static Entry read(const QString& id, const QString& path)
    {
        const KeyFile file = KeyFile::read(path);
        Entry entry{{id, path, file.value(kEntryGroup, QStringLiteral("Name")),
                     file.value(kEntryGroup, QStringLiteral("Exec"))},
                    file.list(kEntryGroup, QStringLiteral("MimeType")),
                    false};
        const bool hidden = file.value(kEntryGroup, QStringLiteral("Hidden")) == QLatin1String("true");
        entry.usable = !hidden && file.value(kEntryGroup, QStringLiteral("Type")) == QLatin1String("Application") &&
                       !entry.app.exec.isEmpty();
        return entry;
    }

    std::optional<VncViewerApp> usable(const QString& id) const
    {
        const auto it = byId.constFind(id);
        return it != byId.cend() && it->usable ? std::optional(it->app) : std::nullopt;
    }
};

// The mimeapps.list files, most important first.
QStringList mimeAppsLists(const VncXdgDirs& dirs)
{
    QStringList lists;
    const auto addFolder = [&](const QString& folder) {
        for (const QString& desktop : dirs.desktops)
            lists.append(folder + QLatin1Char('/') + desktop + QStringLiteral("-mimeapps.list"));
        lists.append(folder + QStringLiteral("/mimeapps.list"));
    };
    for (const QString& folder : dirs.configDirs)
        addFolder(folder);
    for (const QString& folder : dirs.dataDirs)
        addFolder(folder + QStringLiteral("/applications"));
    return lists;
}

} // namespace

std::optional<VncViewerApp> find(const VncXdgDirs& dirs, const QString& mimeType)
{
    const Installed installed(dirs.dataDirs);
    QSet<QString> removed;
    QStringList added;
    for (const QString& path : mimeAppsLists(dirs)) {
        const KeyFile file = KeyFile::read(path);
        for (const QString& id : file.list(QStringLiteral("Default Applications"), mimeType)) {
            if (auto app = installed.usable(id))
                return app;
        }
        for (const QString& id : file.list(QStringLiteral("Added Associations"), mimeType)) {
            if (!removed.contains(id) && !added.contains(id))
                added.append(id);
        }
        for (const QString& id : file.list(QStringLiteral("Removed Associations"), mimeType))
            removed.insert(id);
    }
    for (const QString& id : added) {
        if (auto app = installed.usable(id))
            return app;
    }
    for (const QString& id : installed.order) {
        const Entry entry = installed.byId.value(id);
        if (entry.usable && !removed.contains(id) && entry.mimeTypes.contains(mimeType))
            return entry.app;
    }
    return std::nullopt;
}

} // namespace VncSchemeHandler
