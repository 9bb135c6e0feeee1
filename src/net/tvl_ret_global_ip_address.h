// Finds the machine's public IPv4 address by asking address-echo services one after another.
#pragma once

#include "net/global_ip_result.h"

#include <QByteArray>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QNetworkAccessManager;
class SettingsStore;

class TvlRetGlobalIpAddress : public QObject {
    Q_OBJECT
public:
    // A uniform random index in 0 … bound − 1.
    using RandomSource = std::function<quint32(quint32 bound)>;
    using Completion = std::function<void(const GlobalIpResult&)>;

    static constexpr int kRequestTimeoutMs = 3000;

    // The settings' services (or the built-in table), in a new random order for each lookup.
    explicit TvlRetGlobalIpAddress(const SettingsStore& store, QObject* parent = nullptr);
    // Exactly these services, asked in this order.
    explicit TvlRetGlobalIpAddress(QStringList services, QObject* parent = nullptr);

    void setRandomSource(RandomSource random) { random_ = std::move(random); }
    void setRequestTimeoutMs(int timeoutMs) { timeoutMs_ = timeoutMs; }

    // Asks the services in turn on this object's thread without blocking it, and calls done once,
    // on this thread, with the first result that has an address, or else with the last result.
    // Nothing happens without a done; destroying the object abandons a lookup under way.
    void loadGlobalIpAddress(Completion done);

    // One lookup by a lookup object made for it alone, which is deleted once done has run.
    static void lookUpOnce(TvlRetGlobalIpAddress* lookup, Completion done);

    // The deliberately uneven shuffle: every position from the last down to the second swaps with
    // a position drawn from the whole list.
    static QStringList shuffled(QStringList services, const RandomSource& random);
    // One answer judged: only a 200 with a body can give an address.
    static GlobalIpResult retGlobalIpRes(const QByteArray& data, int statusCode, const QString& mimeType,
                                         const QString& error);
    // text trimmed when it looks like an IPv4 address (a loose check), else empty.
    static QString checkIpAddress(const QString& text);

private:
    struct Lookup;
    void getGlobalIp(const std::shared_ptr<Lookup>& lookup);

    QStringList services_;
    bool shuffle_ = false;
    RandomSource random_;
    int timeoutMs_ = kRequestTimeoutMs;
    QNetworkAccessManager* manager_ = nullptr;
};
