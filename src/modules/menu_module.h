// What every status-item module shares: its settings, its item and menu, and the open state.
#pragma once

#include "collect/info_dict.h"
#include "collect/sensor_dat.h"
#include "collect/storage_descriptions.h"
#include "modules/menu_module_delegate.h"
#include "modules/module_item.h"
#include "modules/status_bar.h"
#include "prefs/module_defaults.h"
#include "prefs/module_id.h"

#include <QImage>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QVariantMap>

#include <memory>

class MenuHistoryGraph;
class QLabel;

class MenuModule : public QObject, public ModuleItem {
    Q_OBJECT
public:
    MenuModule(MenuModuleDelegate* delegate, ModuleId id, QObject* parent = nullptr);
    ~MenuModule() override;

    void setMyDefaults(const ModuleDefaults& defaults) override
    {
        if (settingsRead_ && defaults.sharesDataWith(myDefaults))
            return;
        myDefaults = defaults;
        settingsRead_ = true;
        settingsChanged();
    }
    void setHistory(const InfoDict& info) override { Q_UNUSED(info) }
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override
    {
        Q_UNUSED(disks)
        Q_UNUSED(volumes)
    }
    void setPictureScale(qreal scale) override { pictureScale_ = scale; }
    const ModuleDefaults& defaults() const { return myDefaults; }

    void initDrawStatusBar(StatusBar& bar) override;
    void cycleStatusMenu() override;
    void resetAndRefreshBar() override { refreshBar(); }

    ModuleId moduleId() const override { return id_; }
    bool menuOpened() const override { return menuOpened_; }
    void setMenuItemRefresh(bool refresh) override { menuItemRefresh = refresh; }
    void resetMenuNowCount() override {}
    QMenu* menu() const { return statusMenu; }
    const QImage& shownImage() const override { return shownImage_; }
    // Told every cycle; the picture is drawn again only when the answer changes.
    void setAlerting(bool alerting) override;
    bool alerting() const { return alerting_; }
    StatusItem* item() const { return statusItem.get(); }

    // The graph the open menu shows, drawn now; a null image for a module whose menu has none.
    QImage menuGraphImage() { return drawMenuGraph(); }

    void menuAutoClose() override;

    // Drives the open state as the menu would; the front ends' menus call these through signals.
    void menuWillOpen();
    void menuDidClose();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    // (Re)builds the menu's items.
    virtual void drawBaseStatusBar() = 0;
    // Redraws what the open menu shows.
    virtual void redrawStatusItem() {}
    // Extra work when the menu opens, before its contents are redrawn; a module with an in-menu
    // graph keeps the settings of this moment for it until the menu closes.
    virtual void prepareMenuOpening() {}
    // The settings or the theme changed: the module reads its typed settings again.
    virtual void settingsChanged() {}
    // The in-menu graph with the settings in force now.
    virtual QImage drawMenuGraph() { return {}; }

    void openTab();
    qreal pictureScale() const;
    // Shows the picture in the status item and keeps it for previews.
    void showImage(const QImage& image);
    // The user's settings with the menu graph's fixed layout (mnDefaults) laid over them.
    ModuleDefaults withMenuLayout() const;
    // Adds the graph's range choice (the live samples or a past hour, day or week) to the
    // menu, just above the graph; nothing where no long-term history is kept.
    void addHistoryChoice();
    // Draws the chosen past range into the graph; false while the live samples are chosen.
    bool showHistoryGraph(QLabel* graph);

    MenuModuleDelegate* myDelegate;
    ModuleDefaults myDefaults;
    QPointer<QMenu> statusMenu;
    std::unique_ptr<StatusItem> statusItem;
    bool menuItemRefresh = false;
    // The in-menu graph's own layout; each module keeps the settings its open menu was drawn with.
    ModuleDefaults mnDefaults;

private:
    // Measures the menu's rows again after a panel in it changed size: the menu itself only
    // does so when an item changes. An open menu grows into the screen but does not narrow
    // while it is looked at, so its edge does not jump with every tick's figures.
    void fitMenuToContent();

    ModuleId id_;
    bool menuOpened_ = false;
    MenuHistoryGraph* historyGraph_ = nullptr; // a child, made with the first choice row
    bool settingsRead_ = false;
    qreal pictureScale_ = 0; // 0: the screen's
    QImage shownImage_;
    bool alerting_ = false;
};
