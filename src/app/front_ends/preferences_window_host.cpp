// The desktop's preferences window, built from the module registry and driven by the controller.
#include "app/front_ends/preferences_window_host.h"

#include "app/app_delegate.h"
#include "app/volume_tracker.h"
#include "modules/module_desktop_registry.h"
#include "modules/module_registry.h"
#include "preferences/preference_tab.h"
#include "toolkit/localization.h"

#include <QApplication>

PreferencesWindowHost::PreferencesWindowHost(AppDelegate& delegate, QObject* parent)
    : QObject(parent)
    , delegate_(delegate)
{}

PreferencesWindowHost::~PreferencesWindowHost()
{
    delete window_;
}

void PreferencesWindowHost::build()
{
    window_ = new PreferencesWindow();
    window_->setAttribute(Qt::WA_DeleteOnClose, false);
    const AllModuleDefaults all = delegate_.retAllMyDefault();
    for (const ModuleSchema* schema : allModuleSchemas()) {
        PreferenceTab* tab =
            createPreferenceTab(schema->id, &delegate_, delegate_.userDefaults(), delegate_.prefNotificationCenter());
        tab->setMyDefaults(all, delegate_.themeColorDict());
        const QString label =
            schema->id == ModuleId::General ? Tarvel::localized("Hello!") : Tarvel::localized(schema->prefName);
        window_->addTab(tab, label);
    }
    // The Disk and Volume previews draw one set per disk or volume, as the items do.
    setStorageDescriptions(delegate_.volumeTracker().diskBaseDict(), delegate_.volumeTracker().sharedVolumeBaseDict());
    connect(window_, &PreferencesWindow::tabSelected, this, [this](int index) {
        PreferenceTab* top = window_->tab(0);
        if (index == 0 && top != nullptr) {
            top->rebuildThemeMenus();
            top->rebuildFontMenus();
            top->loadModuleEnabled();
        }
        delegate_.preferenceTabSelected(index);
    });
    connect(window_, &PreferencesWindow::closed, this, [this] {
        delegate_.refreshAllMenuModules();
        // Built again when next opened, from the settings of that moment.
        window_->deleteLater();
    });
}

void PreferencesWindowHost::openTab(int tabIndex, const InfoDict& live)
{
    // Commands that draw offscreen without the widget toolkit's application have no window.
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr)
        return;
    if (window_ == nullptr)
        build();
    window_->openTab(tabIndex);
    // Previews start from what was sampled so far, not from the next cycle.
    for (int i = 0; i < window_->tabCount(); ++i)
        window_->tab(i)->setLiveHistory(live);
}

bool PreferencesWindowHost::isVisible() const
{
    return window_ != nullptr && window_->isVisible();
}

void PreferencesWindowHost::setLiveHistory(const InfoDict& info)
{
    if (!isVisible())
        return;
    for (int i = 0; i < window_->tabCount(); ++i)
        window_->tab(i)->setLiveHistory(info);
}

void PreferencesWindowHost::setStorageDescriptions(const DiskBaseDict& disks,
                                                   std::shared_ptr<const VolumeBaseDict> volumes)
{
    if (window_ == nullptr)
        return;
    for (int i = 0; i < window_->tabCount(); ++i)
        window_->tab(i)->setStorageDescriptions(disks, volumes);
}

void PreferencesWindowHost::handOutDefaults(const AllModuleDefaults& all, const QVariantMap& theme, bool themeChanged)
{
    if (window_ == nullptr)
        return;
    for (int i = 0; i < window_->tabCount(); ++i) {
        window_->tab(i)->setMyDefaults(all, theme);
        window_->tab(i)->update();
    }
    if (!themeChanged)
        return;
    // Module tabs first, the top tab last: its theme and font menus list the new state.
    for (int i = window_->tabCount() - 1; i >= 0; --i)
        window_->tab(i)->resetViews(-1);
    if (PreferenceTab* top = window_->tab(0)) {
        top->rebuildThemeMenus();
        top->rebuildFontMenus();
    }
}

void PreferencesWindowHost::showStoreFailure()
{
    if (window_ != nullptr)
        window_->showStoreFailure();
}
