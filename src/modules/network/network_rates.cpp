// Differences of cumulative counters turned into rates, and their texts.
#include "modules/network/network_rates.h"

#include "prefs/pref_keys.h"
#include "toolkit/counter_arithmetic.h"
#include "toolkit/value_format.h"

#include <algorithm>

using namespace PrefKey;

namespace {

NetworkRates growth(const NetworkSample& before, const NetworkSample& now, double seconds)
{
    if (seconds <= 0)
        return {};
    const auto grown = [seconds](std::int64_t newer, std::int64_t older) {
        return static_cast<double>(Counter::growth(Counter::asCounter(newer), Counter::asCounter(older))) / seconds;
    };
    return {grown(now.toUp, before.toUp), grown(now.toDw, before.toDw)};
}

} // namespace

NetworkRates sampleRates(const History<NetworkSample>& history, std::size_t index)
{
    if (index == 0 || index >= history.size())
        return {};
    return growth(history[index - 1], history[index], history[index].interval);
}

NetworkRates currentNetworkRates(const History<NetworkSample>& history)
{
    return history.empty() ? NetworkRates{} : sampleRates(history, history.size() - 1);
}

bool networkRatesInBits(const ModuleDefaults& myDefaults)
{
    return myDefaults.intValue(Network_Text_Mode) == 2;
}

double networkLimenBytes(const ModuleDefaults& myDefaults)
{
    return static_cast<double>(std::max<qint64>(myDefaults.intValue(Network_Limen_Base), 0)) * 1024;
}

QString networkRateText(double bytesPerSecond, bool bits)
{
    return TvlClasses::calcBytesPerSec(bytesPerSecond, bits, 4);
}

QString networkBarText(const NetworkRates& rates, bool bits)
{
    return QStringLiteral("up ") + networkRateText(rates.up, bits) + QStringLiteral("  down ") +
           networkRateText(rates.down, bits);
}
