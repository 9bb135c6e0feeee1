// The collector's busiest-process list and running-application names.
#include "collect/load_system_information.h"

#include "collect/running_applications.h"

namespace {
// A scan this young still holds every process worth naming; one that started since gets its
// name at the next look.
constexpr std::chrono::seconds kScanReuse{1};
} // namespace

std::optional<QStringList> LoadSystemInformation::psGetProccessAsKv(const QString& column, const ProcessDict& procDict,
                                                                    int displayLimit, std::int32_t addValueMode)
{
    if (!sources_.processes)
        return std::nullopt;
    std::optional<std::vector<ProcessRow>> rows;
    {
        const std::lock_guard guard(processLock);
        processScanTime.reset();
        if (!sources_.processes->rescan(processScan))
            return std::nullopt;
        processScanTime = std::chrono::steady_clock::now();
        ProcessSource& source = *sources_.processes;
        rows = processSampler.sample(processScan, column.toStdString(), *processScanTime,
                                     [&source] { return source.uptimeSeconds(); });
    }
    if (!rows)
        return std::nullopt;
    return buildProcessList(*rows, procDict, displayLimit, addValueMode);
}

ProcessDict LoadSystemInformation::retProcessDict()
{
    if (!sources_.processes)
        return {};
    const std::lock_guard guard(processLock);
    const auto now = std::chrono::steady_clock::now();
    if (!processScanTime || now - *processScanTime > kScanReuse) {
        processScanTime.reset();
        if (!sources_.processes->rescan(processScan))
            return {};
        processScanTime = now;
    }
    desktopIndex.refresh();
    return runningApplications.names(processScan, *sources_.processes, desktopIndex);
}
