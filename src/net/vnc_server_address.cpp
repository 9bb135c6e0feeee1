// Viewers' server strings follow TigerVNC's reading, which Remmina shares for "host:N".
#include "net/vnc_server_address.h"

#include <QHostAddress>
#include <QUrl>

namespace VncServerAddress {
namespace {

constexpr int kDisplayLimit = 100;
constexpr int kMaxPort = 65535;

QString urlFor(const QString& host, std::optional<int> port)
{
    const bool v6 = host.contains(QLatin1Char(':'));
    QString url = QStringLiteral("vnc://") + (v6 ? QLatin1Char('[') + host + QLatin1Char(']') : host);
    if (port)
        url += QLatin1Char(':') + QString::number(*port);
    return url;
}

// ":N" or "::N" after the host; an empty rest means the viewer's default.
std::optional<std::optional<int>> portAfterHost(QStringView rest)
{
    if (rest.isEmpty())
        return std::optional<int>();
    if (!rest.startsWith(QLatin1Char(':')))
        return std::nullopt;
    const bool rawPort = rest.startsWith(QLatin1String("::"));
    bool ok = false;
    int number = rest.mid(rawPort ? 2 : 1).trimmed().toInt(&ok);
    if (!ok || number < 0)
        return std::nullopt;
    if (!rawPort && number < kDisplayLimit)
        number += kBasePort;
    if (number < 1 || number > kMaxPort)
        return std::nullopt;
    return std::optional<int>(number);
}

} // namespace

std::optional<QString> urlFromViewerServer(QStringView server)
{
    const QStringView text = server.trimmed();
    if (text.isEmpty() || text.contains(QLatin1Char('/')))
        return std::nullopt;
    QString host;
    QStringView rest;
    if (text.startsWith(QLatin1Char('['))) {
        const qsizetype close = text.indexOf(QLatin1Char(']'));
        if (close < 0)
            return std::nullopt;
        host = text.mid(1, close - 1).toString();
        rest = text.mid(close + 1);
    } else {
        qsizetype hostEnd = text.lastIndexOf(QLatin1Char(':'));
        if (hostEnd > 0 && text[hostEnd - 1] == QLatin1Char(':'))
            --hostEnd;
        // More colons than a port needs: an IPv6 address without brackets, and no port.
        if (hostEnd < 0 || text.indexOf(QLatin1Char(':')) != hostEnd)
            hostEnd = text.size();
        host = text.left(hostEnd).toString();
        rest = text.mid(hostEnd);
    }
    const auto port = portAfterHost(rest);
    if (!port)
        return std::nullopt;
    return urlFor(host.isEmpty() ? QStringLiteral("localhost") : host, *port);
}

std::optional<QString> normalizedUrl(QStringView typed)
{
    const QString text = typed.trimmed().toString();
    if (text.isEmpty())
        return std::nullopt;
    if (text.startsWith(QLatin1String("vnc:"), Qt::CaseInsensitive)) {
        const QUrl url(text, QUrl::StrictMode);
        if (!url.isValid() || url.host().isEmpty() || url.port() == 0)
            return std::nullopt;
        return url.toString();
    }
    if (QHostAddress(text).protocol() == QAbstractSocket::IPv6Protocol)
        return urlFor(text, std::nullopt);
    const QUrl url(QStringLiteral("vnc://") + text, QUrl::StrictMode);
    const bool plainHost = url.isValid() && !url.host().isEmpty() && url.path().isEmpty() && !url.hasQuery() &&
                           !url.hasFragment() && url.userInfo().isEmpty();
    if (!plainHost || url.port() == 0)
        return std::nullopt;
    return urlFor(url.host(), url.port() > 0 ? std::optional<int>(url.port()) : std::nullopt);
}

} // namespace VncServerAddress
