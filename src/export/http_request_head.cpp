// Reads a request's line and headers.
#include "export/http_request_head.h"

#include <QList>

std::optional<HttpRequestHead> parseRequestHead(const QByteArray& received)
{
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return std::nullopt;
    const QList<QByteArray> lines = received.left(end).split('\n');
    HttpRequestHead head;
    const QList<QByteArray> request = lines.first().trimmed().split(' ');
    if (request.size() != 3 || !request[2].startsWith("HTTP/1.") || !request[1].startsWith('/'))
        return head;
    const qsizetype query = request[1].indexOf('?');
    head.path = query < 0 ? request[1] : request[1].left(query);
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const qsizetype colon = lines[i].indexOf(':');
        if (colon > 0 && lines[i].left(colon).trimmed().toLower() == "accept")
            head.accept = lines[i].mid(colon + 1).trimmed();
    }
    head.method = request[0];
    return head;
}
