// Network menu texts from the traffic figures and the interface base.
#include "modules/network/network_panel_rows.h"

#include "collect/network_detail.h"
#include "modules/network/network_rates.h"
#include "toolkit/localization.h"
#include "toolkit/value_format.h"

#include <algorithm>

namespace {

QString rate(double bytesPerSecond, bool bits)
{
    return TvlClasses::calcBytesPerSec(bytesPerSecond, bits, 0);
}

} // namespace

NetworkPanelFigures networkPanelFigures(const History<NetworkSample>& history, bool bits)
{
    const auto detail = TvlClasses::getNetworkDetail(history, &NetworkSample::toUp, &NetworkSample::toDw);
    if (!detail)
        return {};
    const NetworkRates now = currentNetworkRates(history);
    NetworkRates peak;
    for (std::size_t i = 1; i < history.size(); ++i) {
        const NetworkRates r = sampleRates(history, i);
        peak = {std::max(peak.up, r.up), std::max(peak.down, r.down)};
    }
    return {rate(now.up, bits),
            rate(now.down, bits),
            rate(static_cast<double>(detail->avgUp), bits),
            rate(static_cast<double>(detail->avgDw), bits),
            rate(peak.up, bits),
            rate(peak.down, bits),
            TvlClasses::calcMemorySize(detail->lstUp, 1),
            TvlClasses::calcMemorySize(detail->lstDw, 1)};
}

QString linkSpeedText(std::int64_t bitsPerSecond)
{
    const auto scaled = [](double value, const char* unit) -> QString {
        return QString::number(value, 'g', 4) + QLatin1Char(' ') + QLatin1String(unit);
    };
    const auto bps = static_cast<double>(bitsPerSecond);
    if (bps >= 1e9)
        return scaled(bps / 1e9, Tarvel::textKey("Gbps"));
    if (bps >= 1e6)
        return scaled(bps / 1e6, Tarvel::textKey("Mbps"));
    return scaled(bps / 1e3, Tarvel::textKey("Kbps"));
}

std::vector<NicRow> networkInterfaceRows(const NetworkBase& base, bool showAll,
                                         const QHash<QString, QString>& hostNames)
{
    std::vector<NicRow> rows;
    for (const auto& [name, entry] : base) {
        const bool active = entry.nic && entry.nic->linkstatus == QLatin1String("Active");
        if (!showAll && !active)
            continue;
        NicRow row;
        row.bsdName = name;
        const QString bsd = QString::fromStdString(name);
        row.title = entry.itf && entry.itf->name != bsd ? QStringLiteral("%1 (%2)").arg(entry.itf->name, bsd) : bsd;
        if (entry.itf)
            row.lines.append({Tarvel::localized("Type"), Tarvel::localized(entry.itf->type.toUtf8().constData())});
        if (entry.ip && entry.ip->ipv4) {
            const QString host = hostNames.value(*entry.ip->ipv4);
            row.lines.append({Tarvel::localized("IPv4"),
                              host.isEmpty() ? *entry.ip->ipv4 : QStringLiteral("%1 (%2)").arg(*entry.ip->ipv4, host)});
        }
        if (entry.ip && entry.ip->ipv6)
            row.lines.append({Tarvel::localized("IPv6"), *entry.ip->ipv6});
        if (entry.nic) {
            QString link = Tarvel::localized(entry.nic->linkstatus.toUtf8().constData());
            if (entry.nic->speed && *entry.nic->speed > 0)
                link += QStringLiteral(", ") + linkSpeedText(*entry.nic->speed);
            row.lines.append({Tarvel::localized("Link"), link});
            if (entry.nic->macaddr)
                row.lines.append({Tarvel::localized("MAC Address"), *entry.nic->macaddr});
        }
        rows.push_back(std::move(row));
    }
    return rows;
}
