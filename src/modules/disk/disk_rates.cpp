// Rates between neighbouring Disk samples.
#include "modules/disk/disk_rates.h"

#include "toolkit/counter_arithmetic.h"

namespace {

double perSecond(std::uint64_t before, std::uint64_t now, double seconds)
{
    return static_cast<double>(Counter::growth(now, before)) / seconds;
}

} // namespace

bool countsInCombinedRates(const QString& key)
{
    const QStringView name = QStringView(key).mid(key.startsWith(QLatin1String("/dev/")) ? 5 : 0);
    if (name.startsWith(u"dm-") || name.startsWith(u"loop") || name.startsWith(u"zram"))
        return false;
    return !(name.startsWith(u"md") && name.size() > 2 && name.at(2).isDigit());
}

std::optional<DiskRates> diskRatesAt(const History<DiskSample>& history, std::size_t index, const QString& key)
{
    if (index == 0 || index >= history.size())
        return std::nullopt;
    const DiskSample& before = history[index - 1];
    const DiskSample& now = history[index];
    // The interval the sample was taken over; an unset one counts as the one-second cycle.
    const double seconds = now.interval > 0 ? now.interval : 1.0;
    DiskRates rates;
    if (!key.isEmpty()) {
        const auto a = before.devices.find(key);
        const auto b = now.devices.find(key);
        if (a == before.devices.end() || b == now.devices.end())
            return std::nullopt;
        return DiskRates{perSecond(a->second[0], b->second[0], seconds),
                         perSecond(a->second[1], b->second[1], seconds)};
    }
    for (const auto& [device, counters] : now.devices) {
        const auto a = before.devices.find(device);
        if (a == before.devices.end() || !countsInCombinedRates(device))
            continue;
        rates.read += perSecond(a->second[0], counters[0], seconds);
        rates.write += perSecond(a->second[1], counters[1], seconds);
    }
    return rates;
}

DiskRates newestDiskRates(const History<DiskSample>& history, const QString& key)
{
    if (history.size() < 2)
        return {};
    return diskRatesAt(history, history.size() - 1, key).value_or(DiskRates{});
}
