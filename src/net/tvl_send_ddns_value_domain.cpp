// The dynamic DNS update request, run to completion on a worker thread.
#include "net/tvl_send_ddns_value_domain.h"

#include "net/http_answer.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QThread>
#include <QTimer>
#include <QUrl>

#include <array>
#include <utility>

namespace {

// The service's status lines and the texts shown for them; the Japanese texts are the keys
// under which their translations are found.
constexpr std::array<std::pair<const char*, const char*>, 7> kStatusTexts{{
    {"status=0", "更新に成功しました"},
    {"status=1", "不正なリクエストです"},
    {"status=2", "不正なドメインとパスワードです"},
    {"status=3", "不正なIPアドレスです"},
    {"status=4", "パスワードが一致しません"},
    {"status=5", "データベースサーバーが混雑しています"},
    {"status=9", "その他のエラー"},
}};

constexpr int kInterruptionPollMs = 100;

} // namespace

void TvlSendDdnsValueDomain::sendDdnsProperty(const QString& url,
                                              const std::function<void(const QString&)>& handler) const
{
    QNetworkAccessManager manager;
    QNetworkReply* reply = manager.get(freshRequest(QUrl(url), timeoutMs_));
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    // Quitting the program must not wait for a slow service.
    QTimer interruption;
    QObject::connect(&interruption, &QTimer::timeout, reply, [reply] {
        if (QThread::currentThread()->isInterruptionRequested())
            reply->abort();
    });
    interruption.start(kInterruptionPollMs);
    if (!reply->isFinished())
        loop.exec();
    const HttpAnswer answer = readAnswer(*reply);
    delete reply;
    if (handler)
        handler(retVdResponse(answer.body, answer.statusCode, answer.error));
}

QString TvlSendDdnsValueDomain::retVdResponse(const QByteArray& data, int statusCode, const QString& error)
{
    QString text;
    if (statusCode == 200 && error.isEmpty() && !data.isEmpty()) {
        QString firstLine = QString::fromUtf8(data).section(QLatin1Char('\n'), 0, 0);
        // A server that ends its lines with CR LF still means the same status.
        if (firstLine.endsWith(QLatin1Char('\r')))
            firstLine.chop(1);
        for (const auto& [status, result] : kStatusTexts) {
            if (firstLine == QLatin1String(status))
                text = QString::fromUtf8(result);
        }
    }
    if (!error.isEmpty())
        text += QStringLiteral("[%1] %2").arg(QString::number(statusCode), error);
    return text.isEmpty() ? QStringLiteral("Unknown Error") : text;
}
