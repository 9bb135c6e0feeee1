// Preference-change notifications: a tab posts its module's name with what changed.
#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

struct PrefNotification {
    QString name;         // the module's notification name, such as "CpuModuleNotif"
    QVariantMap userInfo; // NotifKey entries; a missing boolean counts as NO
};
Q_DECLARE_METATYPE(PrefNotification)

// The application's one place where tabs post and the controller listens.
class PrefNotificationCenter : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    void post(const QString& name, const QVariantMap& userInfo = {})
    {
        Q_EMIT posted(PrefNotification{name, userInfo});
    }

Q_SIGNALS:
    void posted(const PrefNotification& notification);
};
