// Files the user owns (settings, themes): what a path really is, bounded reads, setting aside.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace GuardedFile {

enum class Kind {
    Missing, // nothing there yet: it may be created
    Regular, // a plain file, possibly reached through symbolic links
    Other,   // a directory, a device, a pipe, a link to nothing: never read as ours nor replaced
};

struct Target {
    QString path; // where reads and writes go: the final target of any links
    Kind kind = Kind::Missing;
};

// Follows symbolic links so that a linked settings file is kept as a link and its target is
// the file read, set aside and replaced.
Target resolve(const QString& path);

// The whole file when it is a regular file of at most limit bytes; empty optional otherwise.
std::optional<QByteArray> readBounded(const QString& path, qint64 limit);

// Renames a regular file to "<path>.unreadable-<time>[-<n>]", never over an existing file.
// The new name, or an empty optional when the file is not regular or could not be moved.
std::optional<QString> setAside(const QString& path);

} // namespace GuardedFile
