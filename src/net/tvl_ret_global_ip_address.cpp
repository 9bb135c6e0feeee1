// The global address lookup: a shuffled service list walked asynchronously until one answers.
#include "net/tvl_ret_global_ip_address.h"

#include "net/global_ip_services.h"
#include "net/http_answer.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTimer>
#include <QUrl>

struct TvlRetGlobalIpAddress::Lookup {
    QStringList services;
    qsizetype next = 0;
    GlobalIpResult result;
    Completion done;
};

TvlRetGlobalIpAddress::TvlRetGlobalIpAddress(const SettingsStore& store, QObject* parent)
    : QObject(parent)
    , services_(GlobalIpServices::serviceList(store))
    , shuffle_(true)
    , random_([](quint32 bound) { return QRandomGenerator::global()->bounded(bound); })
{}

TvlRetGlobalIpAddress::TvlRetGlobalIpAddress(QStringList services, QObject* parent)
    : QObject(parent)
    , services_(std::move(services))
{}

void TvlRetGlobalIpAddress::loadGlobalIpAddress(Completion done)
{
    if (!done)
        return;
    auto lookup = std::make_shared<Lookup>();
    lookup->services = shuffle_ ? shuffled(services_, random_) : services_;
    lookup->done = std::move(done);
    // Even an empty list answers later, so callers see one behaviour.
    QTimer::singleShot(0, this, [this, lookup] { getGlobalIp(lookup); });
}

void TvlRetGlobalIpAddress::lookUpOnce(TvlRetGlobalIpAddress* lookup, Completion done)
{
    lookup->loadGlobalIpAddress([lookup, done = std::move(done)](const GlobalIpResult& result) {
        lookup->deleteLater();
        if (done)
            done(result);
    });
}

void TvlRetGlobalIpAddress::getGlobalIp(const std::shared_ptr<Lookup>& lookup)
{
    if (lookup->next >= lookup->services.size()) {
        lookup->done(lookup->result);
        return;
    }
    if (manager_ == nullptr)
        manager_ = new QNetworkAccessManager(this);
    const QUrl url(lookup->services.at(lookup->next++));
    QNetworkReply* reply = manager_->get(freshRequest(url, timeoutMs_));
    connect(reply, &QNetworkReply::finished, this, [this, reply, lookup] {
        reply->deleteLater();
        const HttpAnswer answer = readAnswer(*reply);
        lookup->result = retGlobalIpRes(answer.body, answer.statusCode, answer.mimeType, answer.error);
        if (!lookup->result.ip.isEmpty())
            lookup->done(lookup->result);
        else
            getGlobalIp(lookup);
    });
}

QStringList TvlRetGlobalIpAddress::shuffled(QStringList services, const RandomSource& random)
{
    const auto n = static_cast<quint32>(services.size());
    if (n <= 1)
        return services;
    for (quint32 i = n - 1; i >= 1; --i)
        services.swapItemsAt(i, random(n) % n);
    return services;
}

GlobalIpResult TvlRetGlobalIpAddress::retGlobalIpRes(const QByteArray& data, int statusCode, const QString& mimeType,
                                                     const QString& error)
{
    GlobalIpResult result;
    result.er = error;
    if (statusCode != 200 || !error.isEmpty() || data.isEmpty())
        return result;
    if (mimeType == QLatin1String("application/json") || mimeType == QLatin1String("text/javascript")) {
        const QJsonValue origin = QJsonDocument::fromJson(data).object().value(QLatin1String("origin"));
        // A forwarded-for list: the client's own address comes first.
        if (origin.isString() && !origin.toString().isEmpty())
            result.ip = checkIpAddress(origin.toString().section(QLatin1String(", "), 0, 0));
    } else {
        result.ip = checkIpAddress(QString::fromUtf8(data));
    }
    return result;
}

QString TvlRetGlobalIpAddress::checkIpAddress(const QString& text)
{
    // IPv6 answers are refused: the DNS records kept here are A records.
    if (text.contains(QLatin1Char(':')))
        return {};
    const QString trimmed = text.trimmed();
    if (trimmed.size() < 8)
        return {};
    // Deliberately loose: one digit or dot anywhere lets the whole answer through.
    static const QRegularExpression addressChars(QStringLiteral("[0-9\\.]+"));
    return addressChars.match(trimmed).hasMatch() ? trimmed : QString();
}
