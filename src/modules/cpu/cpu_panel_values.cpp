// The CPU panel's shares from the machine record of the newest sample.
#include "modules/cpu/cpu_panel_values.h"

#include <algorithm>

std::array<qint64, 4> cpuPanelShares(const History<CpuSample>& history)
{
    if (history.empty() || history.back().empty())
        return {0, 0, 0, 0};
    const CpuRecord& machine = history.back().back();
    const qint64 user = machine[CpuUser];
    const qint64 system = machine[CpuSystem];
    const qint64 nice = machine[CpuNice];
    return {user, system, nice, std::max<qint64>(100 - (user + system + nice), 0)};
}
