// Sends one update to the Value Domain dynamic DNS service and reads its verdict.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class TvlSendDdnsValueDomain {
public:
    static constexpr int kRequestTimeoutMs = 10000;

    explicit TvlSendDdnsValueDomain(int timeoutMs = kRequestTimeoutMs)
        : timeoutMs_(timeoutMs)
    {}

    // Requests url and calls handler (when given) with the result text, on the calling thread.
    // Blocks that thread in a local event loop until the answer or the time-out, so it belongs on
    // a worker thread; an interruption request on that thread abandons the request early.
    void sendDdnsProperty(const QString& url, const std::function<void(const QString&)>& handler) const;

    // The service's verdict as a translation key: one of the seven status texts when the first
    // line of a 200 answer is a known status, "[code] error" after a transport error, and
    // "Unknown Error" otherwise.
    static QString retVdResponse(const QByteArray& data, int statusCode, const QString& error);

private:
    int timeoutMs_;
};
