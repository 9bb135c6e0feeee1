// Unmount and power-off requests to UDisks2, one after the other, without blocking the menu.
#include "modules/volume/volume_ejector.h"

#include "toolkit/localization.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace {

constexpr char kService[] = "org.freedesktop.UDisks2";
constexpr char kBlockInterface[] = "org.freedesktop.UDisks2.Block";
constexpr char kFilesystemInterface[] = "org.freedesktop.UDisks2.Filesystem";
constexpr char kDriveInterface[] = "org.freedesktop.UDisks2.Drive";
constexpr char kProperties[] = "org.freedesktop.DBus.Properties";

bool serviceMissing(const QDBusError& error)
{
    return error.type() == QDBusError::ServiceUnknown || error.type() == QDBusError::NoServer ||
           error.type() == QDBusError::Disconnected;
}

} // namespace

VolumeEjector::VolumeEjector(QObject* parent)
    : QObject(parent)
{}

QDBusConnection VolumeEjector::bus()
{
    if (!bus_)
        bus_ = QDBusConnection::systemBus();
    return *bus_;
}

QString VolumeEjector::blockObjectPath(const QString& kernelName)
{
    QString path = QStringLiteral("/org/freedesktop/UDisks2/block_devices/");
    for (const char c : kernelName.toUtf8()) {
        const bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
        if (plain)
            path += QLatin1Char(c);
        else
            path += QStringLiteral("_%1").arg(static_cast<unsigned char>(c), 2, 16, QLatin1Char('0'));
    }
    return path;
}

QString VolumeEjector::unavailableMessage()
{
    return Tarvel::localized("Volumes are ejected through the UDisks2 service, which is not running on this system.");
}

void VolumeEjector::ejectWithConfirmation(const QString& path, const VolumeBaseEntry& volume)
{
    QMessageBox question(QMessageBox::Question, Tarvel::localized("Eject"),
                         Tarvel::localized("Eject \"%@\"?").replace(QLatin1String("%@"), volume.volumeName),
                         QMessageBox::Cancel);
    question.setInformativeText(Tarvel::localized("Programs using files on it should be closed first."));
    QPushButton* ejectButton = question.addButton(Tarvel::localized("Eject"), QMessageBox::AcceptRole);
    question.setDefaultButton(ejectButton);
    question.exec();
    if (question.clickedButton() == ejectButton)
        eject(path, volume);
}

void VolumeEjector::eject(const QString& path, const VolumeBaseEntry& volume)
{
    if (volume.isNetworkVol || volume.bsdPath.isEmpty()) {
        Q_EMIT finished(path, false, Tarvel::localized("Network volumes are disconnected, not ejected."));
        return;
    }
    if (!bus().isConnected()) {
        Q_EMIT finished(path, false, unavailableMessage());
        return;
    }
    // The table may name a link (/dev/mapper/...); the service knows the kernel's name.
    const QString device = QFileInfo(volume.bsdPath).canonicalFilePath();
    const QString blockPath = blockObjectPath(QFileInfo(device.isEmpty() ? volume.bsdPath : device).fileName());
    QDBusMessage unmount = QDBusMessage::createMethodCall(
        QLatin1String(kService), blockPath, QLatin1String(kFilesystemInterface), QStringLiteral("Unmount"));
    unmount << QVariantMap();
    auto* watcher = new QDBusPendingCallWatcher(bus().asyncCall(unmount), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, path, blockPath](QDBusPendingCallWatcher* w) {
        w->deleteLater();
        unmounted(path, blockPath, *w);
    });
}

void VolumeEjector::unmounted(const QString& path, const QString& blockPath, const QDBusPendingCall& call)
{
    if (call.isError()) {
        fail(path, call);
        return;
    }
    QDBusMessage get = QDBusMessage::createMethodCall(QLatin1String(kService), blockPath, QLatin1String(kProperties),
                                                      QStringLiteral("Get"));
    get << QLatin1String(kBlockInterface) << QStringLiteral("Drive");
    auto* watcher = new QDBusPendingCallWatcher(bus().asyncCall(get), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, path](QDBusPendingCallWatcher* w) {
        w->deleteLater();
        driveFound(path, *w);
    });
}

void VolumeEjector::driveFound(const QString& path, const QDBusPendingCall& call)
{
    const QDBusPendingReply<QDBusVariant> reply(call);
    const QString drive = reply.isError() ? QString() : reply.value().variant().value<QDBusObjectPath>().path();
    // Unmounted is what matters: a drive that cannot be powered off is safe to pull now.
    if (drive.isEmpty() || drive == QLatin1String("/")) {
        Q_EMIT finished(path, true, {});
        return;
    }
    QDBusMessage all = QDBusMessage::createMethodCall(QLatin1String(kService), drive, QLatin1String(kProperties),
                                                      QStringLiteral("GetAll"));
    all << QLatin1String(kDriveInterface);
    auto* watcher = new QDBusPendingCallWatcher(bus().asyncCall(all), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, path, drive](QDBusPendingCallWatcher* w) {
        w->deleteLater();
        powerOff(path, drive, *w);
    });
}

void VolumeEjector::powerOff(const QString& path, const QString& drive, const QDBusPendingCall& call)
{
    const QDBusPendingReply<QVariantMap> reply(call);
    const QVariantMap facts = reply.isError() ? QVariantMap() : reply.value();
    const char* method = facts.value(QStringLiteral("CanPowerOff")).toBool() ? "PowerOff"
                         : facts.value(QStringLiteral("Ejectable")).toBool() ? "Eject"
                                                                             : nullptr;
    if (method != nullptr) {
        QDBusMessage off = QDBusMessage::createMethodCall(QLatin1String(kService), drive,
                                                          QLatin1String(kDriveInterface), QLatin1String(method));
        off << QVariantMap();
        bus().asyncCall(off);
    }
    Q_EMIT finished(path, true, {});
}

void VolumeEjector::fail(const QString& path, const QDBusPendingCall& call)
{
    const QDBusError error = call.error();
    Q_EMIT finished(path, false, serviceMissing(error) ? unavailableMessage() : error.message());
}
