// What every preferences tab shares: its module, the store it writes, the notification it posts.
#pragma once

#include "collect/info_dict.h"
#include "prefs/module_defaults.h"
#include "prefs/module_table.h"

#include <QVariantMap>
#include <QWidget>

#include <array>

class PrefNotificationCenter;
class SettingsStore;

// Every module's working dictionary, in module table order.
using AllModuleDefaults = std::array<ModuleDefaults, 9>;

class PreferenceTab : public QWidget {
    Q_OBJECT
public:
    PreferenceTab(ModuleId id, SettingsStore& store, PrefNotificationCenter& center, QWidget* parent = nullptr);

    ModuleId moduleId() const { return id_; }

    // Takes the current settings and shows them; the tab's own changes are not posted meanwhile.
    void setMyDefaults(const AllModuleDefaults& all);
    // Shows the settings again from scratch (after a theme change, for example).
    virtual void resetViews(int which);
    // The sampled data, for live previews; handed over only while the window is shown.
    virtual void setLiveHistory(const InfoDict& info) { Q_UNUSED(info) }
    virtual void rebuildThemeMenus() {}
    virtual void rebuildFontMenus() {}
    virtual void loadModuleEnabled() {}

Q_SIGNALS:
    // The store could not save a change; the window tells the user.
    void storeFailed();
    void storeSaved();

protected:
    // Puts the settings into the widgets. Runs with the tab's change handling switched off.
    virtual void loadViews() = 0;

    const ModuleDefaults& myDefaults() const { return all_[static_cast<std::size_t>(id_)]; }
    const AllModuleDefaults& allDefaults() const { return all_; }
    SettingsStore& store() { return store_; }
    // True while loadViews runs: widget signals then are not the user's changes.
    bool loading() const { return loading_ > 0; }

    // Saves the store and posts this module's notification; false, and storeFailed, when the
    // store could not be saved (the change still takes effect for this run).
    bool commit(const QVariantMap& userInfo = {});
    // Posts without touching the store (colours and fonts live in the theme).
    void post(const QVariantMap& userInfo);
    void postAs(ModuleId id, const QVariantMap& userInfo);

private:
    ModuleId id_;
    SettingsStore& store_;
    PrefNotificationCenter& center_;
    AllModuleDefaults all_;
    int loading_ = 0;
};
