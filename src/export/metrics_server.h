// The HTTP side of the export: GET /metrics on a TCP port, answered from the newest figures.
#pragma once

#include "export/listen_address.h"
#include "export/metric_family.h"

#include <QObject>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

// Lives on the main thread's event loop; a scrape renders the figures it was last handed and
// reads nothing else, so it never waits on the sampling cycle nor the cycle on it.
class MetricsServer : public QObject {
    Q_OBJECT
public:
    struct Limits {
        qsizetype maxRequestBytes = 8192; // the request line and headers together
        int maxConnections = 8;           // open at once; more are answered 503 and closed
        int idleMs = 10000;               // a client that has not finished its request by then is dropped
    };

    explicit MetricsServer(QObject* parent = nullptr);
    MetricsServer(Limits limits, QObject* parent);

    // Stops any previous listening first. False with errorString() when the address cannot be had.
    bool listen(const ListenAddress& address);
    void close();
    bool isListening() const { return server_.isListening(); }
    quint16 port() const { return server_.serverPort(); }
    QString errorString() const { return server_.errorString(); }
    // Whether the last failure was an address already taken by another program.
    bool addressInUse() const { return server_.serverError() == QAbstractSocket::AddressInUseError; }

    void setFamilies(SharedMetricFamilies families) { families_ = std::move(families); }

private:
    void acceptConnections();
    void readRequest(QTcpSocket* socket);
    void answer(QTcpSocket* socket, int status, const QByteArray& contentType, const QByteArray& body,
                const QByteArray& extraHeaders = {});
    void answerMetrics(QTcpSocket* socket, const QByteArray& accept);

    Limits limits_;
    QTcpServer server_;
    int openConnections_ = 0;
    SharedMetricFamilies families_ = std::make_shared<const MetricFamilies>();
};
