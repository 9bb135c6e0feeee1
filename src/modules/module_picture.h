// What draws a module's picture for its status item and the graph of its drop-down, apart from any menu.
#pragma once

#include "collect/info_dict.h"
#include "collect/storage_descriptions.h"
#include "modules/menu_module_delegate.h"
#include "prefs/module_defaults.h"
#include "prefs/module_id.h"

#include <QImage>
#include <QString>

#include <memory>
#include <optional>

// The bar's picture and the same figures as words; no words keeps those shown before (before
// the first sample, for modules whose words are figures).
struct BarPicture {
    QImage image;
    std::optional<QString> text;
};

// Kept apart from the menus so that a render without the widget toolkit draws the very pictures
// the desktop shows. The menus read the figures they need from here too.
class ModulePicture {
public:
    ModulePicture(MenuModuleDelegate* delegate, ModuleId id)
        : myDelegate(delegate)
        , id_(id)
    {}
    virtual ~ModulePicture() = default;
    ModulePicture(const ModulePicture&) = delete;
    ModulePicture& operator=(const ModulePicture&) = delete;

    // Every in-menu graph is this tall, in points; its width is the menu layout's.
    static constexpr double kMenuGraphHeight = 20;

    ModuleId moduleId() const { return id_; }
    // Handed the same dictionary every cycle: the typed settings are rebuilt only when it changed.
    void setMyDefaults(const ModuleDefaults& defaults);
    const ModuleDefaults& defaults() const { return myDefaults; }
    // The in-menu graph's fixed layout, laid over the user's settings for it.
    const ModuleDefaults& menuLayout() const { return mnDefaults; }

    // Takes this module's history from the sampled data; modules without one ignore it.
    virtual void setHistory(const InfoDict& info) { Q_UNUSED(info) }
    // The disk and volume descriptions, for modules that draw one set per disk or volume.
    virtual void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes)
    {
        Q_UNUSED(disks)
        Q_UNUSED(volumes)
    }
    // The bar's picture now, at scale device pixels per point, highlighted as the item of an
    // open menu; none while there is nothing to draw (no settings yet, no element switched on).
    virtual std::optional<BarPicture> drawBar(bool highlighted, qreal scale) = 0;
    // The in-menu graph with the settings in force now; null for a module whose menu has none.
    virtual QImage drawMenuGraph(qreal scale)
    {
        Q_UNUSED(scale)
        return {};
    }
    // The in-menu graph with the settings of the menu's opening, which it keeps until it closes.
    virtual QImage drawOpenMenuGraph(qreal scale)
    {
        Q_UNUSED(scale)
        return {};
    }
    // The menu opens: its graph keeps the settings of this moment.
    virtual void keepForOpenMenu() {}

protected:
    // The settings or the theme changed: the typed settings are read again.
    virtual void settingsChanged() {}
    // The user's settings with the menu graph's fixed layout laid over them.
    ModuleDefaults withMenuLayout() const;

    MenuModuleDelegate* myDelegate;
    ModuleDefaults myDefaults;
    ModuleDefaults mnDefaults;

private:
    ModuleId id_;
    bool settingsRead_ = false;
};

// A theme picture as an image of its size in points.
QImage themePictureImage(const ThemePicture& picture);

// The factory a module's descriptor names.
template <class Picture> std::unique_ptr<ModulePicture> makePicture(MenuModuleDelegate* delegate)
{
    return std::make_unique<Picture>(delegate);
}
