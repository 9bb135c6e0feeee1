// Ties the metrics server to the application: the newest figures after each cycle, and in the
// monitor the General settings' switch and address.
#pragma once

#include "export/listen_address.h"
#include "export/metrics_builder.h"

#include <QObject>
#include <QString>

class AppDelegate;
class MetricsServer;

class MetricsExport : public QObject {
    Q_OBJECT
public:
    explicit MetricsExport(AppDelegate& delegate, QObject* parent = nullptr);

    // Serves on the address until stopped; false when it cannot be had (see problem()).
    bool serve(const ListenAddress& address);
    void stop();
    MetricsServer& server() const { return *server_; }

    // The monitor: serve while the General settings say so, on their address, following changes.
    void followSettings();
    // What the user is told of the serving: where it is, or why it is not; empty while off.
    QString status() const { return status_; }

Q_SIGNALS:
    void statusChanged(const QString& status);

private:
    void cycleFinished();
    void applySettings();
    void setStatus(const QString& status);

    AppDelegate& delegate_;
    MetricsBuilder builder_;
    MetricsServer* server_;
    bool followingSettings_ = false;
    // The settings last acted on, so that an address that failed is not tried every second.
    bool appliedEnabled_ = false;
    QString appliedAddress_;
    QString status_;
};
