// The test HTTP server: request-line parsing, routed answers, optional delays.
#include "support/local_http_server.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTimer>

namespace {

const char* reasonPhrase(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 404:
        return "Not Found";
    case 500:
        return "Internal Server Error";
    default:
        return "Status";
    }
}

constexpr char kBufferProperty[] = "requestBuffer";

} // namespace

LocalHttpServer::LocalHttpServer(QObject* parent)
    : QObject(parent)
{
    connect(&server_, &QTcpServer::newConnection, this, &LocalHttpServer::accept);
    server_.listen(QHostAddress::LocalHost, 0);
    port_ = server_.serverPort();
}

QString LocalHttpServer::url(const QString& pathAndQuery) const
{
    return QStringLiteral("http://127.0.0.1:%1%2").arg(port_).arg(pathAndQuery);
}

void LocalHttpServer::accept()
{
    while (QTcpSocket* socket = server_.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void LocalHttpServer::read(QTcpSocket* socket)
{
    QByteArray buffer = socket->property(kBufferProperty).toByteArray() + socket->readAll();
    socket->setProperty(kBufferProperty, buffer);
    if (!buffer.contains("\r\n\r\n"))
        return;
    disconnect(socket, &QTcpSocket::readyRead, this, nullptr);
    const QList<QByteArray> requestLine = buffer.left(buffer.indexOf("\r\n")).split(' ');
    Request request;
    request.method = requestLine.value(0);
    request.target = requestLine.value(1);
    const qsizetype question = request.target.indexOf('?');
    request.path = question < 0 ? request.target : request.target.left(question);
    request.query = question < 0 ? QByteArray() : request.target.mid(question + 1);
    requests_.append(request);
    if (seen_)
        seen_(request);
    const Response response = routes_.value(request.path, Response{404, "text/plain", "not found", 0});
    if (response.delayMs > 0)
        QTimer::singleShot(response.delayMs, socket, [this, socket, response] { answer(socket, response); });
    else
        answer(socket, response);
}

void LocalHttpServer::answer(QTcpSocket* socket, const Response& response)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) + ' ' + reasonPhrase(response.status) + "\r\n";
    if (!response.contentType.isEmpty())
        head += "Content-Type: " + response.contentType + "\r\n";
    head += "Content-Length: " + QByteArray::number(response.body.size()) + "\r\nConnection: close\r\n\r\n";
    socket->write(head + response.body);
    socket->disconnectFromHost();
}
