// Opening the preferences window and handling the changes its tabs announce.
#include "app/app_delegate.h"

#include "app/app_logging.h"
#include "app/appearance_watcher.h"
#include "modules/module_registry.h"
#include "prefs/plist_io.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_appearance.h"
#include "prefs/theme_color.h"
#include "prefs/theme_files.h"
#include "prefs/theme_keys.h"
#include "prefs/theme_list.h"
#include "prefs/theme_repair.h"
#include "toolkit/localization.h"

#include <QTimer>

namespace {

// The tab's own handling of the change finishes first.
constexpr int kPrefDelayMs = 250;
// A burst of colour changes (a drag in the colour dialog) is written once, this long after the first.
constexpr int kColorWriteDelayMs = 1000;
constexpr int kRebootSettingDelayMs = 1000;

bool flag(const QVariantMap& info, const char* key)
{
    return info.value(QLatin1String(key)).toBool();
}

} // namespace

void AppDelegate::openPreferenceTab(int tabIndex)
{
    openedTabNum = tabIndex + 1;
    if (statusBar_ == nullptr || preferencesHost_ == nullptr)
        return;
    preferencesHost_->openTab(tabIndex, infoDict_);
}

void AppDelegate::preferenceTabSelected(int index)
{
    openedTabNum = index + 1;
    refreshAllMenuModules();
}

QList<QImage> AppDelegate::shownBarImages() const
{
    QList<QImage> images;
    for (const QVariant& code : generalDefaults().listValue(PrefKey::TopItemSortArray)) {
        const auto id = moduleForSortCode(code.toLongLong());
        if (id && moduleItem(*id) != nullptr && !moduleItem(*id)->shownImage().isNull())
            images.append(moduleItem(*id)->shownImage());
    }
    if (const ModuleItem* general = moduleItem(ModuleId::General);
        general != nullptr && !general->shownImage().isNull())
        images.append(general->shownImage());
    return images;
}

void AppDelegate::refreshAllMenuModules()
{
    for (const ModuleSchema* schema : allModuleSchemas()) {
        ModuleItem* module = moduleItem(schema->id);
        if (schema->id != ModuleId::General && module != nullptr && switchedOn(schema->id))
            module->refreshBar();
    }
}

void AppDelegate::notifFromPref(const PrefNotification& notification)
{
    QTimer::singleShot(kPrefDelayMs, this, [this, notification] {
        pendingPrefs_.push_back(notification);
        drainPrefNotifications();
    });
}

void AppDelegate::drainPrefNotifications()
{
    while (!pendingPrefs_.empty()) {
        // Settings and status items must not change under a running cycle: look again later,
        // keeping the event loop (and the cycle's redraw step) running meanwhile.
        if (loadSysInfoTimerFinishedBool) {
            if (!prefRetryScheduled_) {
                prefRetryScheduled_ = true;
                QTimer::singleShot(kPrefDelayMs, this, [this] {
                    prefRetryScheduled_ = false;
                    drainPrefNotifications();
                });
            }
            return;
        }
        const PrefNotification next = pendingPrefs_.front();
        pendingPrefs_.pop_front();
        processNotifFromPref(next);
    }
}

void AppDelegate::processNotifFromPref(const PrefNotification& notification)
{
    const QVariantMap& info = notification.userInfo;
    bool skipRest = false;
    processFontOrColor(info, skipRest);
    if (skipRest)
        return;
    const bool removeFirst = flag(info, NotifKey::ModuleAllocNow);
    const bool refreshItems = flag(info, NotifKey::ModuleItemRefreshNow);

    if (const auto id = moduleForNotification(notification.name)) {
        if (*id == ModuleId::General) {
            reloadGeneralDefaults(false);
            reDrawModule(ModuleId::General, true);
            const qint64 days = chkGeneInteger(PrefKey::kRebootRegularlyDays);
            if (days != rebootDaysInt) {
                rebootDaysInt = days;
                if (!changeRebootPool) {
                    changeRebootPool = true;
                    QTimer::singleShot(kRebootSettingDelayMs, this, &AppDelegate::rebootMeSetting);
                }
            }
            if (flag(info, NotifKey::ModuleDefaultReload)) {
                for (const ModuleSchema* schema : allModuleSchemas()) {
                    const ModuleId m = schema->id;
                    if (m == ModuleId::General)
                        continue;
                    reloadModuleDefaults(m);
                    if (ModuleItem* module = moduleItem(m))
                        module->setMyDefaults(defaults(m));
                    reDrawModule(m, true);
                }
                Q_EMIT allModulesReloaded();
            }
            moduleLaunchCheck(removeFirst);
        } else {
            processModuleNotif(*id, info, removeFirst, refreshItems);
        }
    }
    // Any tab may have edited the rules of its module.
    reloadAlertRules();
    handOutTabDefaults(flag(info, NotifKey::ModuleThemeChanged));
}

void AppDelegate::processFontOrColor(const QVariantMap& info, bool& skipRest)
{
    if (flag(info, NotifKey::FontChanged)) {
        for (const char* key : {PrefKey::_FontName, PrefKey::_FontStyle, PrefKey::_FontPostScriptName}) {
            const auto it = info.constFind(QLatin1String(key));
            if (it != info.cend() && it->toString() != QLatin1String(NotifKey::kUnchangedText))
                themeColorDict_.insert(QLatin1String(key), it->toString());
        }
        for (const char* key : {PrefKey::_FontAdjust, PrefKey::_FontSizeDiff}) {
            const auto it = info.constFind(QLatin1String(key));
            if (it != info.cend() && it->toLongLong() >= NotifKey::kUnchangedNumberBelow)
                themeColorDict_.insert(QLatin1String(key), it->toLongLong());
        }
        writeNowThemeFile();
        return;
    }
    const auto key = info.constFind(QLatin1String(NotifKey::ChangeColorKey));
    const auto value = info.constFind(QLatin1String(NotifKey::ChangeColorVal));
    if (key != info.cend() && value != info.cend()) {
        themeColorDict_.insert(key->toString(), TvlClasses::colorToArray(value->value<QColor>()));
        if (changeColorPool) {
            // A write is pending and will reload everything with this colour too.
            skipRest = true;
            return;
        }
        changeColorPool = true;
        QTimer::singleShot(kColorWriteDelayMs, this, &AppDelegate::writeToColorThemeFile);
    }
    if (flag(info, NotifKey::ModuleThemeChanged))
        loadThemeColorDict();
}

void AppDelegate::processModuleNotif(ModuleId id, const QVariantMap& info, bool removeFirst, bool refreshItems)
{
    if (flag(info, NotifKey::ChangeMenuCount)) {
        if (ModuleItem* module = moduleItem(id))
            module->resetMenuNowCount();
    }
    reloadModuleDefaults(id);
    moduleLaunchCheck(removeFirst);
    reDrawModule(id, true);
    if (refreshItems) {
        if (ModuleItem* module = moduleItem(id))
            module->setMenuItemRefresh(true);
    }
}

void AppDelegate::handOutTabDefaults(bool themeChanged)
{
    if (preferencesHost_ != nullptr)
        preferencesHost_->handOutDefaults(retAllMyDefault(), themeColorDict_, themeChanged);
}

void AppDelegate::loadThemeColorDict()
{
    QString problem;
    takeTheme(TvlClasses::checkThemeValues(TvlClasses::checkNowThemeFile(&problem)));
    if (!problem.isEmpty())
        qCWarning(lcApp).noquote() << problem;
}

void AppDelegate::writeNowThemeFile()
{
    if (!PlistIo::writeDictionaryAtomically(TvlClasses::retThemeFilePath(QLatin1String(TvlClasses::kNowThemeFileName)),
                                            themeColorDict_)) {
        qCWarning(lcApp, Tarvel::textKey("The current theme could not be written."));
        if (preferencesHost_ != nullptr)
            preferencesHost_->showStoreFailure();
    }
    Q_EMIT themeFileWritten();
}

void AppDelegate::writeToColorThemeFile()
{
    writeNowThemeFile();
    changeColorPool = false;
    notifFromPref(PrefNotification{QLatin1String(moduleSchema(ModuleId::General).notification),
                                   {{QLatin1String(NotifKey::ModuleDefaultReload), true}}});
}

void AppDelegate::changeAppearanceMode(bool desktopIsDark)
{
    const auto alternative =
        TvlClasses::retAppearanceSwitchTheme(themeColorDict_, desktopIsDark, TvlClasses::retThemeList());
    if (!alternative || !TvlClasses::selectThemeFile(*alternative))
        return;
    qCInfo(lcApp, Tarvel::textKey("The desktop's appearance changed; switching to the theme %s."),
           qPrintable(*alternative));
    notifFromPref(PrefNotification{
        QLatin1String(moduleSchema(ModuleId::General).notification),
        {{QLatin1String(NotifKey::ModuleDefaultReload), true}, {QLatin1String(NotifKey::ModuleThemeChanged), true}}});
}
