// Carries out the user's dynamic DNS lines in order on a thread of its own.
#pragma once

#include <QString>
#include <QStringList>
#include <QThread>

class Notifier;
struct DdnsLine;

class DdnsLineWalker : public QThread {
    Q_OBJECT
public:
    struct Walk {
        QStringList lines;
        QString newAddress;
        QString oldText; // the address the lines were last carried out for, or "(No Record)"
        bool forced = false;
        QString endpointBase;
        int timeoutMs = 0;
    };

    // notifier must outlive the walk; it is called from the walking thread.
    DdnsLineWalker(Walk walk, Notifier& notifier, QObject* parent = nullptr);

    // A short account of the walk for the preferences, without any password; read it once the
    // thread has finished.
    QString outcome() const { return outcome_; }

protected:
    void run() override;

private:
    void walkLine(const DdnsLine& line, const QString& label);
    void sendUpdate(const DdnsLine& line);
    void notify(const QString& title, const QString& text);

    Walk walk_;
    Notifier& notifier_;
    int updatesSent_ = 0;
    int updatesSucceeded_ = 0;
    QString outcome_;
};
