// Where every message to the user goes: the desktop's notifications, a tray balloon, or a line of text.
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <utility>

// Values of the tag that tells what a notification is about, and so what its actions do.
namespace UserNotifTag {
inline constexpr char UpdateExists[] = "UserNotifValUpdateExists";
inline constexpr char NoUpdate[] = "NoUpdate";
} // namespace UserNotifTag

struct UserNotification {
    QString title;
    QString text;
    QString tag; // what it is about (UserNotifTag); empty for a plain message
    // The buttons it offers, as identifier and label ("download", "Download"); a plain message
    // has none.
    QList<std::pair<QString, QString>> actions;
};

// Callable from any thread: implementations deliver on their own thread.
class Notifier : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    virtual void fireNotification(const UserNotification& notification) = 0;

Q_SIGNALS:
    // The user chose one of a notification's actions.
    void actionInvoked(const QString& tag, const QString& action);
};
