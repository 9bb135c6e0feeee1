// A stand-in for the desktop's notification service on a test bus: records what it is asked to show.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

class NotificationService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Shown {
        QString summary;
        QString body;
        QStringList actions;
    };

    // Registers the service's name and object on bus; false when the name is taken.
    bool registerOn(QDBusConnection bus);
    // Emits the service's signal that the user chose action on notification id.
    void invoke(uint id, const QString& action);

    QList<Shown> shown;

public Q_SLOTS:
    uint Notify(const QString& appName, uint replacesId, const QString& appIcon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int timeout);
    QStringList GetCapabilities() { return {QStringLiteral("body"), QStringLiteral("actions")}; }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString& actionKey);

private:
    QDBusConnection bus_{QString()};
};
