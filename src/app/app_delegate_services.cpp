// The application's network services: the notifier, the dynamic DNS trigger and its forced run.
#include "app/app_delegate.h"

#include "app/desktop_notifier.h"
#include "net/dbus_notifier.h"
#include "net/ddns_settings.h"
#include "net/tvl_classes_update.h"
#include "net/update_settings.h"
#include "prefs/pref_keys.h"

#include <QDesktopServices>
#include <QUrl>

#include <utility>

namespace {

// One check in this many cycles: about every ten minutes at one cycle a second.
constexpr quint32 kDdnsCheckEveryCycles = 600;

} // namespace

Notifier* AppDelegate::notifier()
{
    // Made when first needed: most runs never tell the user anything, and a bus costs a thread.
    if (notifier_ == nullptr) {
        notifier_ = new DesktopNotifier(new DBusNotifier(), this);
        notifier_->setFallback(statusBar_ != nullptr ? statusBar_ : messageBar_);
        connect(notifier_, &Notifier::actionInvoked, this, &AppDelegate::notificationActionInvoked);
    }
    return notifier_;
}

void AppDelegate::notificationActionInvoked(const QString& tag, const QString& action)
{
    // Clicking the notice itself counts as its first button, as on every desktop.
    if (tag == QLatin1String(UserNotifTag::UpdateExists) &&
        (action == QLatin1String(TvlClasses::kDownloadAction) || action == QLatin1String("default"))) {
        const QString page = UpdateSettings::downloadPageUrl(*userDefaults_);
        if (!page.isEmpty())
            QDesktopServices::openUrl(QUrl(page));
    }
}

void AppDelegate::checkForUpdates()
{
    TvlClasses::updateCheck(*userDefaults_, *notifier(), QStringLiteral(TARVEL_VERSION));
}

void AppDelegate::visitWebSite()
{
    // The site is where the download page lives.
    const QUrl page(UpdateSettings::downloadPageUrl(*userDefaults_));
    if (page.isValid() && !page.host().isEmpty())
        QDesktopServices::openUrl(page.resolved(QUrl(QStringLiteral("/"))));
}

void AppDelegate::ddnsRunFinished(const QString& outcome)
{
    if (ddnsOutcome_)
        std::exchange(ddnsOutcome_, {})(outcome);
}

void AppDelegate::checkDdns(bool forced)
{
    if (!forced) {
        ++chkNowGlobalIpAddrCount;
        if (chkNowGlobalIpAddrCount % kDdnsCheckEveryCycles != 0)
            return;
    }
    chkNowGlobalIpAddrCount = 0;
    if (DdnsSettings::hasDdnsList(*userDefaults_))
        Q_EMIT ddnsLookupRequested(forced);
}

void AppDelegate::forcedExecutionDdns(std::function<void(const QString& outcome)> done)
{
    ddnsOutcome_ = std::move(done);
    userDefaults_->removeObjectForKey(PrefKey::NowGlobalIpAddr);
    userDefaults_->synchronize();
    checkDdns(true);
}
