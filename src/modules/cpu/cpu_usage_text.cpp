// User and system shares of a record, rounded as the picture's texts are.
#include "modules/cpu/cpu_usage_text.h"

#include "toolkit/value_format.h"

QString cpuUsageText(const CpuRecord& r)
{
    const double sum = static_cast<double>(r[CpuUser] + r[CpuSystem] + r[CpuNice] + r[CpuIdle]);
    const double user = sum > 0 ? static_cast<double>(r[CpuUser]) / sum : 0.0;
    const double system = sum > 0 ? static_cast<double>(r[CpuSystem]) / sum : 0.0;
    return QStringLiteral("user ") + TvlClasses::calcPercent(user) + QStringLiteral("  system ")
        + TvlClasses::calcPercent(system);
}
