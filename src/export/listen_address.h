// The "ADDR:PORT" text the server listens on, as the command line and the settings give it.
#pragma once

#include <QHostAddress>
#include <QString>

#include <optional>

inline constexpr char kDefaultListenAddress[] = "127.0.0.1:9772";

struct ListenAddress {
    QHostAddress host;
    quint16 port = 0; // 0: any free port, which the server then reports
};

// "127.0.0.1:9772", "[::1]:9772", "localhost:9772" or ":9772" (every address); none when the
// text is not one of these or names no numeric address (host names other than localhost are not
// looked up: nothing waits on a name server before the monitor starts).
std::optional<ListenAddress> parseListenAddress(const QString& text);

// "http://127.0.0.1:9772/metrics", an IPv6 host in brackets.
QString metricsUrl(const QHostAddress& host, quint16 port);
