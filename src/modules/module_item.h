// What the application asks of a module's status item, whatever draws it.
#pragma once

#include "collect/info_dict.h"
#include "collect/storage_descriptions.h"
#include "modules/status_bar.h"
#include "prefs/module_defaults.h"
#include "prefs/module_id.h"

#include <QImage>

#include <memory>

// The application keeps its items through this alone, so that the programs without a display
// (the text view, the snapshot, the render) link no menu or widget code: PictureItem draws the
// picture alone, and the desktop's MenuModule adds the menu to it.
class ModuleItem {
public:
    virtual ~ModuleItem() = default;

    virtual ModuleId moduleId() const = 0;
    // Handed the same dictionary every cycle: the typed settings are rebuilt only when it changed.
    virtual void setMyDefaults(const ModuleDefaults& defaults) = 0;
    // Takes this module's history from the sampled data; modules without one ignore it.
    virtual void setHistory(const InfoDict& info) = 0;
    // The volume and disk descriptions, for modules that draw one set per disk or volume; the
    // menu's rows follow at its next opening.
    virtual void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) = 0;
    // Device pixels per point of the pictures: the screen's ratio unless set (renders choose theirs).
    virtual void setPictureScale(qreal scale) = 0;
    // Creates the menu and the status item, then builds the menu's items.
    virtual void initDrawStatusBar(StatusBar& bar) = 0;
    // Every sampling tick: the picture, and the menu's contents while it is open.
    virtual void cycleStatusMenu() = 0;
    // Recomputes and redraws the picture.
    virtual void refreshBar() = 0;
    // Draws again from what is described now, forgetting what was drawn (after a mount).
    virtual void resetAndRefreshBar() = 0;
    virtual bool menuOpened() const = 0;
    virtual void setMenuItemRefresh(bool refresh) = 0;
    // Only the Temp module counts the sensors its menu shows.
    virtual void resetMenuNowCount() = 0;
    // The picture the status item shows now.
    virtual const QImage& shownImage() const = 0;
    // Whether one of the module's alert rules is firing: its picture then carries a mark.
    virtual void setAlerting(bool alerting) = 0;
    // Closes an open menu whose rows no longer match what they describe (disks, volumes).
    virtual void menuAutoClose() = 0;
    // The graph the open menu shows, drawn now; a null image for a module whose menu has none.
    virtual QImage menuGraphImage() = 0;
};

// How the application gets an item for a module; none for a module without one.
class MenuModuleDelegate;
using ModuleItemFactory = std::unique_ptr<ModuleItem> (*)(ModuleId id, MenuModuleDelegate* delegate);
