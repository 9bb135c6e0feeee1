// The Network menu's look-ups: the host name of an address and the current connection's name.
#include "collect/load_system_information.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>

namespace {

const QString kNetworkManager = QStringLiteral("org.freedesktop.NetworkManager");
// The menu waits for these answers; a bus that is slow to answer is treated as absent.
constexpr int kBusTimeoutMs = 500;

// A property of a NetworkManager object; an invalid variant when there is no answer.
QVariant networkManagerProperty(QDBusConnection& bus, const QString& path, const QString& interface,
                                const QString& name)
{
    QDBusMessage get = QDBusMessage::createMethodCall(
        kNetworkManager, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    get << interface << name;
    const QDBusMessage reply = bus.call(get, QDBus::Block, kBusTimeoutMs);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    return reply.arguments().constFirst().value<QDBusVariant>().variant();
}

// Asked of the bus itself, so that a NetworkManager that is not running is not started by
// the question.
bool networkManagerRunning(QDBusConnection& bus)
{
    QDBusMessage ask =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    ask << kNetworkManager;
    const QDBusMessage reply = bus.call(ask, QDBus::Block, kBusTimeoutMs);
    return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty() &&
           reply.arguments().constFirst().toBool();
}

} // namespace

std::optional<QString> LoadSystemInformation::getHostNameFromIpAddress(const QString& address)
{
    sockaddr_in socketAddress{};
    socketAddress.sin_family = AF_INET;
    const QByteArray text = address.toLatin1();
    if (::inet_pton(AF_INET, text.constData(), &socketAddress.sin_addr) == 1) {
        std::array<char, NI_MAXHOST> host{};
        if (::getnameinfo(reinterpret_cast<const sockaddr*>(&socketAddress), sizeof socketAddress, host.data(),
                          host.size(), nullptr, 0, NI_NAMEREQD) == 0)
            return QString::fromUtf8(host.data());
    }
    return std::nullopt;
}

QString LoadSystemInformation::getCurrentNetworkLocation()
{
    const QString none = QStringLiteral("---");
    QDBusConnection bus = QDBusConnection::systemBus();
    if (!bus.isConnected() || !networkManagerRunning(bus))
        return none;
    const auto primary = networkManagerProperty(bus, QStringLiteral("/org/freedesktop/NetworkManager"), kNetworkManager,
                                                QStringLiteral("PrimaryConnection"))
                             .value<QDBusObjectPath>();
    // "/" stands for no connection.
    if (primary.path().isEmpty() || primary.path() == QLatin1String("/"))
        return none;
    const QString name =
        networkManagerProperty(bus, primary.path(), QStringLiteral("org.freedesktop.NetworkManager.Connection.Active"),
                               QStringLiteral("Id"))
            .toString();
    return name.isEmpty() ? none : name;
}
