// What every preferences tab shares: its module, the store it writes, the notification it posts.
#pragma once

#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"
#include "prefs/pref_schema.h"

#include <QPointer>
#include <QVariantMap>
#include <QWidget>

#include <array>
#include <memory>

class AlertEditor;
class InfoDict;
class PrefNotificationCenter;
class SettingsStore;

class PreferenceTab : public QWidget {
    Q_OBJECT
public:
    PreferenceTab(const ModuleSchema& schema, SettingsStore& store, PrefNotificationCenter& center,
                  QWidget* parent = nullptr);

    ModuleId moduleId() const { return schema_.id; }
    const ModuleSchema& schema() const { return schema_; }

    // Takes the current settings and shows them; the tab's own changes are not posted meanwhile.
    // theme: the colour theme in use, for the settings the tab works out again itself after a
    // change of its own.
    void setMyDefaults(const AllModuleDefaults& all, const QVariantMap& theme);
    // Shows the settings again from scratch (after a theme change, for example).
    virtual void resetViews(int which);
    // The sampled data, for live previews; handed over only while the window is shown.
    virtual void setLiveHistory(const InfoDict& info) { Q_UNUSED(info) }
    // The volume and disk descriptions, for tabs whose previews draw one set per disk or volume.
    virtual void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes)
    {
        Q_UNUSED(disks)
        Q_UNUSED(volumes)
    }
    // The module's alert rules, shown below the tab's own settings; made on the first call, null
    // for a module without figures to watch. Its changes are saved and posted as the tab's own.
    AlertEditor* alertsSection();
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

    const ModuleDefaults& myDefaults() const { return all_[moduleIndex(schema_.id)]; }
    const QVariantMap& theme() const { return theme_; }
    const AllModuleDefaults& allDefaults() const { return all_; }
    SettingsStore& store() { return store_; }
    // True while loadViews runs: widget signals then are not the user's changes.
    bool loading() const { return loading_ > 0; }

    // Saves the store and posts this module's notification; false, and storeFailed, when the
    // store could not be saved (the change still takes effect for this run).
    bool commit(const QVariantMap& userInfo = {});
    // Posts without touching the store (colours and fonts live in the theme).
    void post(const QVariantMap& userInfo);
    void postAs(const ModuleSchema& schema, const QVariantMap& userInfo);

private:
    const ModuleSchema& schema_;
    QVariantMap theme_;
    SettingsStore& store_;
    PrefNotificationCenter& center_;
    AllModuleDefaults all_;
    QPointer<AlertEditor> alerts_;
    int loading_ = 0;
};
