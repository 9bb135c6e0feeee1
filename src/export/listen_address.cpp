// Reads a listen address and port.
#include "export/listen_address.h"

std::optional<ListenAddress> parseListenAddress(const QString& text)
{
    const QString trimmed = text.trimmed();
    const qsizetype colon = trimmed.lastIndexOf(QLatin1Char(':'));
    if (colon < 0)
        return std::nullopt;
    bool ok = false;
    const uint port = QStringView(trimmed).mid(colon + 1).toUInt(&ok);
    if (!ok || port > 65535)
        return std::nullopt;
    QString host = trimmed.left(colon);
    if (host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')))
        host = host.mid(1, host.size() - 2);
    else if (host.contains(QLatin1Char(':')))
        return std::nullopt; // an IPv6 address without brackets leaves its port unclear
    ListenAddress address;
    address.port = static_cast<quint16>(port);
    if (host.isEmpty())
        address.host = QHostAddress(QHostAddress::Any);
    else if (host.compare(QLatin1String("localhost"), Qt::CaseInsensitive) == 0)
        address.host = QHostAddress(QHostAddress::LocalHost);
    else if (!address.host.setAddress(host))
        return std::nullopt;
    return address;
}

QString metricsUrl(const QHostAddress& host, quint16 port)
{
    const QString name = host.protocol() == QAbstractSocket::IPv6Protocol
                             ? QLatin1Char('[') + host.toString() + QLatin1Char(']')
                             : host.toString();
    return QStringLiteral("http://%1:%2/metrics").arg(name).arg(port);
}
