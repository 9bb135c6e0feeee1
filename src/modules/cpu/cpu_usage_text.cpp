// User and system shares of a record, rounded as the picture's texts are.
#include "modules/cpu/cpu_usage_text.h"

#include "toolkit/value_format.h"

QString cpuUsageText(const CpuRecord& r)
{
    // Summed as doubles: four tick counts from a hostile tree can overflow any integer sum.
    const double sum = static_cast<double>(r[CpuUser]) + static_cast<double>(r[CpuSystem]) +
                       static_cast<double>(r[CpuNice]) + static_cast<double>(r[CpuIdle]);
    const double user = sum > 0 ? static_cast<double>(r[CpuUser]) / sum : 0.0;
    const double system = sum > 0 ? static_cast<double>(r[CpuSystem]) / sum : 0.0;
    return QStringLiteral("user ") + TvlClasses::calcPercent(user) + QStringLiteral("  system ")
        + TvlClasses::calcPercent(system);
}
