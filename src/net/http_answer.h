// One HTTP exchange's outcome in the terms the network services judge it by.
#pragma once

#include <QByteArray>
#include <QString>

class QNetworkReply;
class QNetworkRequest;
class QUrl;

struct HttpAnswer {
    QByteArray body;
    int statusCode = 0; // 0 when no answer arrived
    QString mimeType;   // the Content-Type without its parameters
    // Why no answer arrived (refused, timed out, TLS); empty whenever the server answered, whatever
    // its status, because an error status is an answer the callers judge by its code.
    QString error;
};

// A GET for url that never comes from a cache and gives up after timeoutMs without progress.
QNetworkRequest freshRequest(const QUrl& url, int timeoutMs);

// The finished reply's answer. Error texts never carry the request's address, which may hold a
// password in its query.
HttpAnswer readAnswer(QNetworkReply& reply);
