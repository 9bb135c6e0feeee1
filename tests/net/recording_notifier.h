// A notifier for tests that keeps every notification, from whichever thread it came.
#pragma once

#include "net/notifier.h"

#include <QList>
#include <QMutex>
#include <QMutexLocker>

class RecordingNotifier : public Notifier {
public:
    void fireNotification(const UserNotification& notification) override
    {
        const QMutexLocker lock(&mutex_);
        received_.append(notification);
    }

    QList<UserNotification> received() const
    {
        const QMutexLocker lock(&mutex_);
        return received_;
    }

    QStringList titles() const
    {
        QStringList titles;
        for (const UserNotification& n : received())
            titles.append(n.title);
        return titles;
    }

private:
    mutable QMutex mutex_;
    QList<UserNotification> received_;
};
