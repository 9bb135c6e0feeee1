// A small HTTP/1.1 server on 127.0.0.1 for tests, answering each path as it is told.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>

#include <functional>

class QTcpSocket;

// Lives on the thread that runs the test, which must turn its event loop while clients wait.
// One request per connection; paths without a route get a 404.
class LocalHttpServer : public QObject {
    Q_OBJECT
public:
    struct Response {
        int status = 200;
        QByteArray contentType = "text/plain";
        QByteArray body;
        int delayMs = 0; // the answer waits this long after the request arrived
    };
    struct Request {
        QByteArray method;
        QByteArray target; // path and query as the client sent them
        QByteArray path;
        QByteArray query; // without the "?"
    };

    explicit LocalHttpServer(QObject* parent = nullptr);

    quint16 port() const { return port_; }
    // "http://127.0.0.1:<port>" followed by pathAndQuery.
    QString url(const QString& pathAndQuery) const;

    void route(const QByteArray& path, const Response& response) { routes_.insert(path, response); }
    // Called as each request arrives, before it is answered.
    void onRequest(std::function<void(const Request&)> seen) { seen_ = std::move(seen); }
    const QList<Request>& requests() const { return requests_; }

    // Stops listening: later connections to the port are refused.
    void close() { server_.close(); }

private:
    void accept();
    void read(QTcpSocket* socket);
    void answer(QTcpSocket* socket, const Response& response);

    QTcpServer server_;
    quint16 port_ = 0;
    QHash<QByteArray, Response> routes_;
    QList<Request> requests_;
    std::function<void(const Request&)> seen_;
};
