// Remembers which files have had their rejection logged, across every reader and thread.
#include "collect/linux/rejected_text.h"

#include "collect/collect_log.h"

#include <mutex>
#include <set>

namespace {
std::mutex warnedLock;
std::set<std::filesystem::path>& warnedFiles()
{
    static std::set<std::filesystem::path> files;
    return files;
}
} // namespace

void warnRejectedOnce(const std::filesystem::path& path, const ParseError& error)
{
    {
        const std::lock_guard guard(warnedLock);
        if (!warnedFiles().insert(path).second)
            return;
    }
    if (error.lineNumber == 0) {
        qCWarning(lcCollect).noquote() << QString::fromStdString(path.string()) + QLatin1String(": ") +
                                              QString::fromStdString(error.reason);
        return;
    }
    qCWarning(lcCollect).noquote().nospace()
        << QString::fromStdString(path.string()) << ": " << QString::fromStdString(error.reason) << " at line "
        << error.lineNumber << ": \"" << QString::fromStdString(error.line) << '"';
}
