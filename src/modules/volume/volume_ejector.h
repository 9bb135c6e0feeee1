// Ejecting a volume through the UDisks2 service on the system bus: its file system is unmounted,
// then its drive is powered off, or its medium ejected, where the drive allows.
#pragma once

#include "collect/storage_descriptions.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <optional>

class QDBusPendingCall;

class VolumeEjector : public QObject {
    Q_OBJECT
public:
    explicit VolumeEjector(QObject* parent = nullptr);
    // The bus to ask; the system bus unless a test gives another.
    void setBus(const QDBusConnection& bus) { bus_ = bus; }

    // Asks the user first; a refusal ends nothing and reports nothing.
    void ejectWithConfirmation(const QString& path, const VolumeBaseEntry& volume);
    // Starts at once; the outcome arrives as finished().
    void eject(const QString& path, const VolumeBaseEntry& volume);

    // UDisks2's object of a block device: its kernel name with every character other than an
    // ASCII letter or digit written as "_" and two hexadecimal digits ("dm-0" is dm_2d0).
    static QString blockObjectPath(const QString& kernelName);
    // The message when the service is not there to ask.
    static QString unavailableMessage();

Q_SIGNALS:
    // ejected false comes with a message for the user.
    void finished(const QString& path, bool ejected, const QString& message);

private:
    QDBusConnection bus();
    void unmounted(const QString& path, const QString& blockPath, const QDBusPendingCall& call);
    void driveFound(const QString& path, const QDBusPendingCall& call);
    void powerOff(const QString& path, const QString& drive, const QDBusPendingCall& call);
    void fail(const QString& path, const QDBusPendingCall& call);

    // Connected at the first eject: items are created where no eject ever happens.
    std::optional<QDBusConnection> bus_;
};
