// The preferences window host and the handling of its change notifications.
#include "app/app_delegate.h"

#include "app/app_logging.h"
#include "app/appearance_watcher.h"
#include "modules/module_registry.h"
#include "preferences/preferences_window.h"
#include "prefs/plist_io.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_appearance.h"
#include "prefs/theme_color.h"
#include "prefs/theme_files.h"
#include "prefs/theme_keys.h"
#include "prefs/theme_list.h"
#include "prefs/theme_repair.h"
#include "toolkit/localization.h"

#include <QApplication>
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

void AppDelegate::drawModuleTabViewControllers()
{
    if (preferencePanel_ != nullptr || !preferencesAvailable_ ||
        qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return;
    preferencePanel_ = new PreferencesWindow();
    preferencePanel_->setAttribute(Qt::WA_DeleteOnClose, false);
    const AllModuleDefaults all = retAllMyDefault();
    for (const ModuleSchema* schema : allModuleSchemas()) {
        PreferenceTab* tab = createPreferenceTab(schema->id, this, *userDefaults_, *prefCenter_);
        tab->setMyDefaults(all, themeColorDict_);
        const QString label = schema->id == ModuleId::General ? Tarvel::localized("Hello!") : Tarvel::localized(schema->prefName);
        preferencePanel_->addTab(tab, label);
    }
    // The Disk and Volume previews draw one set per disk or volume, as the items do.
    handOutStorageDescriptions();
    connect(preferencePanel_, &PreferencesWindow::tabSelected, this, [this](int index) {
        openedTabNum = index + 1;
        PreferenceTab* top = preferencePanel_->tab(0);
        if (index == 0 && top != nullptr) {
            top->rebuildThemeMenus();
            top->rebuildFontMenus();
            top->loadModuleEnabled();
        }
        refreshAllMenuModules();
    });
    connect(preferencePanel_, &PreferencesWindow::closed, this, [this] {
        refreshAllMenuModules();
        // Built again when next opened, from the settings of that moment.
        preferencePanel_->deleteLater();
    });
}

void AppDelegate::openPreferenceTab(int tabIndex)
{
    openedTabNum = tabIndex + 1;
    if (statusBar_ == nullptr)
        return;
    drawModuleTabViewControllers();
    if (preferencePanel_ == nullptr)
        return;
    preferencePanel_->openTab(tabIndex);
    // Previews start from what was sampled so far, not from the next cycle.
    for (int i = 0; i < preferencePanel_->tabCount(); ++i)
        preferencePanel_->tab(i)->setLiveHistory(infoDict_);
}

QList<QImage> AppDelegate::shownBarImages() const
{
    QList<QImage> images;
    for (const QVariant& code : generalDefaults().listValue(PrefKey::TopItemSortArray)) {
        const auto id = moduleForSortCode(code.toLongLong());
        if (id && menuModule(*id) != nullptr && !menuModule(*id)->shownImage().isNull())
            images.append(menuModule(*id)->shownImage());
    }
    if (const MenuModule* general = menuModule(ModuleId::General);
        general != nullptr && !general->shownImage().isNull())
        images.append(general->shownImage());
    return images;
}

void AppDelegate::refreshAllMenuModules()
{
    for (const ModuleSchema* schema : allModuleSchemas()) {
        MenuModule* module = menuModule(schema->id);
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
                    if (MenuModule* module = menuModule(m))
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
        if (MenuModule* module = menuModule(id))
            module->resetMenuNowCount();
    }
    reloadModuleDefaults(id);
    moduleLaunchCheck(removeFirst);
    reDrawModule(id, true);
    if (refreshItems) {
        if (MenuModule* module = menuModule(id))
            module->setMenuItemRefresh(true);
    }
}

void AppDelegate::handOutTabDefaults(bool themeChanged)
{
    if (preferencePanel_ == nullptr)
        return;
    const AllModuleDefaults all = retAllMyDefault();
    for (int i = 0; i < preferencePanel_->tabCount(); ++i) {
        preferencePanel_->tab(i)->setMyDefaults(all, themeColorDict_);
        preferencePanel_->tab(i)->update();
    }
    if (!themeChanged)
        return;
    // Module tabs first, the top tab last: its theme and font menus list the new state.
    for (int i = preferencePanel_->tabCount() - 1; i >= 0; --i)
        preferencePanel_->tab(i)->resetViews(-1);
    if (PreferenceTab* top = preferencePanel_->tab(0)) {
        top->rebuildThemeMenus();
        top->rebuildFontMenus();
    }
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
        if (preferencePanel_ != nullptr)
            preferencePanel_->showStoreFailure();
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
    qCInfo(lcApp, Tarvel::textKey("The desktop's appearance changed; switching to the theme %s."), qPrintable(*alternative));
    notifFromPref(PrefNotification{
        QLatin1String(moduleSchema(ModuleId::General).notification),
        {{QLatin1String(NotifKey::ModuleDefaultReload), true}, {QLatin1String(NotifKey::ModuleThemeChanged), true}}});
}
