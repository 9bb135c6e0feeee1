// The collector's busiest-process list and running-application names.
#include "collect/load_system_information.h"

#include "collect/running_applications.h"

std::optional<QStringList> LoadSystemInformation::psGetProccessAsKv(const QString& column, const ProcessDict& procDict,
                                                                    int displayLimit, std::int32_t addValueMode)
{
    if (!sources_.processes)
        return std::nullopt;
    std::optional<std::vector<ProcessRow>> rows;
    {
        const std::lock_guard guard(processLock);
        rows = processSampler.sample(*sources_.processes, column.toStdString());
    }
    if (!rows)
        return std::nullopt;
    return buildProcessList(*rows, procDict, displayLimit, addValueMode);
}

ProcessDict LoadSystemInformation::retProcessDict()
{
    if (!sources_.processes)
        return {};
    const std::lock_guard guard(desktopLock);
    desktopIndex.refresh();
    return runningApplications(*sources_.processes, desktopIndex);
}
