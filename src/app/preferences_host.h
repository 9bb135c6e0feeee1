// The preferences window as the application controller drives it, whoever builds it.
#pragma once

#include "collect/info_dict.h"
#include "collect/storage_descriptions.h"
#include "prefs/module_defaults.h"

#include <QVariantMap>

#include <memory>

// The desktop builds the window; the programs without a display have none, so that they link
// none of its widgets.
class PreferencesHost {
public:
    virtual ~PreferencesHost() = default;

    // Opens the window on that tab (0-based), building it when it is closed; its previews start
    // from what was sampled so far.
    virtual void openTab(int tabIndex, const InfoDict& live) = 0;
    // Whether the window is on the screen now.
    virtual bool isVisible() const = 0;
    // The previews follow the live data while the window is shown.
    virtual void setLiveHistory(const InfoDict& info) = 0;
    virtual void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) = 0;
    // Every tab takes the settings and the theme again; a theme change also rebuilds its menus.
    virtual void handOutDefaults(const AllModuleDefaults& all, const QVariantMap& theme, bool themeChanged) = 0;
    // Tells the user in the window, while it is open, that a change could not be saved.
    virtual void showStoreFailure() = 0;
};
