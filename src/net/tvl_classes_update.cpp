// The update check: version file fetch, version comparison and the two notices.
#include "net/tvl_classes_update.h"

#include "net/format_objects.h"
#include "net/http_answer.h"
#include "net/notifier.h"
#include "net/update_settings.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

#include <limits>

namespace {

constexpr int kRequestTimeoutMs = 3000;
// The whole fetch may take no longer than this, whatever the pace of the transfer.
constexpr int kResourceTimeoutMs = 2000;

// The number at the start of text, as a lenient reader of hand-written version files takes it:
// leading blanks and a sign allowed, anything after the digits ignored, 0 when there are none.
qint64 leadingInteger(QStringView text)
{
    text = text.trimmed();
    bool negative = false;
    if (!text.isEmpty() && (text.front() == QLatin1Char('-') || text.front() == QLatin1Char('+'))) {
        negative = text.front() == QLatin1Char('-');
        text = text.mid(1);
    }
    qint64 value = 0;
    for (const QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9') || value > (std::numeric_limits<qint64>::max() - 9) / 10)
            break;
        value = value * 10 + (c.unicode() - u'0');
    }
    return negative ? -value : value;
}

// "6.5.12" as 60512; missing parts count 0.
qint64 versionNumber(const QString& version)
{
    const QStringList parts = version.split(QLatin1Char('.'));
    qint64 number = 0;
    for (int i = 0; i < 3; ++i)
        number = number * 100 + (i < parts.size() ? leadingInteger(parts.at(i)) : 0);
    return number;
}

void finishCheck(SettingsStore& store, Notifier& notifier, const QString& ownVersion, const QByteArray& data,
                 const TvlClasses::UpdateCheckDone& done)
{
    const QString newVersion = TvlClasses::updateCheckDetail(data, ownVersion);
    int found = 0;
    if (newVersion.isEmpty())
        TvlClasses::noUpdateAlert(notifier);
    else
        found = TvlClasses::existsUpdateAlert(store, notifier, ownVersion, newVersion);
    if (done)
        done(found);
}

} // namespace

namespace TvlClasses {

void updateCheck(SettingsStore& store, Notifier& notifier, const QString& ownVersion, UpdateCheckDone done)
{
    const QString address = UpdateSettings::versionFileUrl(store);
    if (address.isEmpty()) {
        notifier.fireNotification(UserNotification{Tarvel::localized("Update check unavailable"),
                                                   Tarvel::localized("No address is set for the version file."),
                                                   QString(),
                                                   {}});
        if (done)
            done(0);
        return;
    }
    auto* manager = new QNetworkAccessManager;
    QNetworkReply* reply = manager->get(freshRequest(QUrl(address), kRequestTimeoutMs));
    QTimer::singleShot(kResourceTimeoutMs, reply, [reply] { reply->abort(); });
    QObject::connect(reply, &QNetworkReply::finished, manager,
                     [&store, &notifier, ownVersion, reply, manager, done = std::move(done)] {
                         // Only the body counts: a failure reads as no newer version.
                         const HttpAnswer answer = readAnswer(*reply);
                         manager->deleteLater();
                         finishCheck(store, notifier, ownVersion, answer.error.isEmpty() ? answer.body : QByteArray(),
                                     done);
                     });
}

QString updateCheckDetail(const QByteArray& data, const QString& ownVersion)
{
    if (data.isEmpty())
        return {};
    const QString text = QString::fromUtf8(data);
    if (text.size() != 6 || leadingInteger(text) <= versionNumber(ownVersion))
        return {};
    return QStringLiteral("%1.%2.%3")
        .arg(leadingInteger(text.mid(0, 2)))
        .arg(leadingInteger(text.mid(2, 2)))
        .arg(leadingInteger(text.mid(4, 2)));
}

int existsUpdateAlert(SettingsStore& store, Notifier& notifier, const QString& ownVersion, const QString& newVersion)
{
    store.setBool(PrefKey::UpdateAlerting, true);
    store.synchronize();
    notifier.fireNotification(
        UserNotification{Tarvel::localized("New version available"),
                         fillObjects(Tarvel::localized("now ver : %@\nnew ver : %@"), {ownVersion, newVersion}),
                         QString::fromLatin1(UserNotifTag::UpdateExists),
                         {{QString::fromLatin1(kDownloadAction), Tarvel::localized("Download")},
                          {QString::fromLatin1(kCancelAction), Tarvel::localized("Cancel")}}});
    return 1;
}

void noUpdateAlert(Notifier& notifier)
{
    notifier.fireNotification(
        UserNotification{Tarvel::localized("No update available"), QString(), QString::fromLatin1(UserNotifTag::NoUpdate), {}});
}

} // namespace TvlClasses
