// Folds Qt's reply errors into "no answer" versus "an answer with a status".
#include "net/http_answer.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

namespace {

// Qt reports 4xx and 5xx statuses as reply errors; they are answers all the same.
bool isStatusError(QNetworkReply::NetworkError error)
{
    const int code = static_cast<int>(error);
    const bool contentStatus = code >= QNetworkReply::ContentAccessDenied &&
                               code <= QNetworkReply::UnknownContentError && error != QNetworkReply::ContentReSendError;
    const bool serverStatus = code >= QNetworkReply::InternalServerError && code <= QNetworkReply::UnknownServerError;
    return contentStatus || serverStatus;
}

QString withoutAddress(QString text, const QUrl& url)
{
    for (const QString& form :
         {url.toString(), QString::fromLatin1(url.toEncoded()), url.query(), url.query(QUrl::FullyEncoded)}) {
        if (!form.isEmpty())
            text.replace(form, QStringLiteral("…"));
    }
    return text;
}

} // namespace

QNetworkRequest freshRequest(const QUrl& url, int timeoutMs)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setTransferTimeout(timeoutMs);
    return request;
}

HttpAnswer readAnswer(QNetworkReply& reply)
{
    HttpAnswer answer;
    if (reply.isOpen()) // an aborted reply is closed
        answer.body = reply.readAll();
    answer.statusCode = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    answer.mimeType =
        reply.header(QNetworkRequest::ContentTypeHeader).toString().section(QLatin1Char(';'), 0, 0).trimmed().toLower();
    const QNetworkReply::NetworkError error = reply.error();
    // A transfer cut short after the status line is still a failed transfer.
    const bool answered = answer.statusCode != 0 && isStatusError(error);
    if (error != QNetworkReply::NoError && !answered)
        answer.error = withoutAddress(reply.errorString(), reply.request().url());
    return answer;
}
