// The texts of the Network menu: the traffic figures and a row per interface.
#pragma once

#include "collect/history.h"
#include "collect/network_base.h"
#include "collect/network_sample.h"

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>

#include <string>
#include <vector>

struct NetworkPanelFigures {
    QString nowUp, nowDw;     // over the newest interval
    QString avgUp, avgDw;     // over the whole history
    QString peakUp, peakDw;   // the fastest interval of the history
    QString totalUp, totalDw; // since boot

    bool operator==(const NetworkPanelFigures&) const = default;
};

// From the history's traffic figures. Samples cover different spans (one second while the menu
// is open, the interval setting otherwise), so now and peak are each sample's growth over its
// own span. Empty texts for an empty history.
NetworkPanelFigures networkPanelFigures(const History<NetworkSample>& history, bool bits);

struct NicRow {
    std::string bsdName;
    QString title;                        // "Intel I219-V (eth0)", or the bare name
    QList<QPair<QString, QString>> lines; // localised title, value
};

// One row per interface in name order: type, addresses (IPv4 with its host name where one was
// looked up), link with speed, hardware address. Without showAll only interfaces whose link
// is "Active". Link words and types are passed through localisation.
std::vector<NicRow> networkInterfaceRows(const NetworkBase& base, bool showAll,
                                         const QHash<QString, QString>& hostNames = {});

// "1 Gbps", "100 Mbps", "2.5 Gbps": link speeds are decimal.
QString linkSpeedText(std::int64_t bitsPerSecond);
