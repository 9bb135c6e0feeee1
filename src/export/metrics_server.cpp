// Answers scrapers: one request per connection, then the connection is closed.
#include "export/metrics_server.h"

#include "export/export_log.h"
#include "export/http_request_head.h"
#include "export/metric_text.h"

#include <QTcpSocket>
#include <QTimer>

namespace {

QByteArray reasonPhrase(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 431:
        return "Request Header Fields Too Large";
    case 503:
        return "Service Unavailable";
    default:
        return "Error";
    }
}

// What the socket has received so far, kept on the socket itself until its head is complete.
constexpr char kReceivedProperty[] = "tarvelReceived";

} // namespace

MetricsServer::MetricsServer(QObject* parent)
    : MetricsServer(Limits{}, parent)
{}

MetricsServer::MetricsServer(Limits limits, QObject* parent)
    : QObject(parent)
    , limits_(limits)
{
    connect(&server_, &QTcpServer::newConnection, this, &MetricsServer::acceptConnections);
}

bool MetricsServer::listen(const ListenAddress& address)
{
    close();
    if (server_.listen(address.host, address.port))
        return true;
    qCWarning(lcExport) << "cannot listen on" << address.host.toString() << address.port << server_.errorString();
    return false;
}

void MetricsServer::close()
{
    server_.close();
}

void MetricsServer::acceptConnections()
{
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        socket->setParent(this);
        ++openConnections_;
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            --openConnections_;
            socket->deleteLater();
        });
        if (openConnections_ > limits_.maxConnections) {
            answer(socket, 503, "text/plain; charset=utf-8", "Too many connections\n", "Retry-After: 1\r\n");
            continue;
        }
        auto* idle = new QTimer(socket);
        idle->setSingleShot(true);
        connect(idle, &QTimer::timeout, socket, &QTcpSocket::abort);
        idle->start(limits_.idleMs);
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readRequest(socket); });
        readRequest(socket);
    }
}

void MetricsServer::readRequest(QTcpSocket* socket)
{
    QByteArray received = socket->property(kReceivedProperty).toByteArray() + socket->readAll();
    const std::optional<HttpRequestHead> head = parseRequestHead(received);
    if (!head) {
        if (received.size() > limits_.maxRequestBytes)
            answer(socket, 431, "text/plain; charset=utf-8", "Request too large\n");
        else
            socket->setProperty(kReceivedProperty, received);
        return;
    }
    disconnect(socket, &QTcpSocket::readyRead, this, nullptr);
    if (received.indexOf("\r\n\r\n") > limits_.maxRequestBytes)
        answer(socket, 431, "text/plain; charset=utf-8", "Request too large\n");
    else if (head->method.isEmpty())
        answer(socket, 400, "text/plain; charset=utf-8", "Bad request\n");
    else if (head->path != "/metrics")
        answer(socket, 404, "text/plain; charset=utf-8", "Not found; the figures are at /metrics\n");
    else if (head->method != "GET")
        answer(socket, 405, "text/plain; charset=utf-8", "Only GET\n", "Allow: GET\r\n");
    else
        answerMetrics(socket, head->accept);
}

void MetricsServer::answerMetrics(QTcpSocket* socket, const QByteArray& accept)
{
    if (MetricText::wantsOpenMetrics(accept))
        answer(socket, 200, MetricText::kOpenMetricsContentType, MetricText::openMetrics(*families_));
    else
        answer(socket, 200, MetricText::kPlainContentType, MetricText::plainText(*families_));
}

void MetricsServer::answer(QTcpSocket* socket, int status, const QByteArray& contentType, const QByteArray& body,
                           const QByteArray& extraHeaders)
{
    disconnect(socket, &QTcpSocket::readyRead, this, nullptr);
    const QByteArray head =
        "HTTP/1.1 " + QByteArray::number(status) + ' ' + reasonPhrase(status) + "\r\nContent-Type: " + contentType +
        "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\nConnection: close\r\n" + extraHeaders + "\r\n";
    socket->write(head + body);
    // Anything more the client sends is not read; the connection ends once the answer is out.
    socket->disconnectFromHost();
}
