// What every status-item module shares: its settings, its item and menu, and the open state.
#pragma once

#include "collect/info_dict.h"
#include "collect/sensor_dat.h"
#include "collect/storage_descriptions.h"
#include "modules/status_bar.h"
#include "prefs/module_defaults.h"
#include "prefs/module_id.h"

#include <QImage>
#include <QList>
#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QVariantMap>

#include <functional>
#include <memory>

class HistoryReader;
class LoadSystemInformation;
class MenuHistoryGraph;
class QLabel;
class Notifier;
class SettingsStore;

// Receives the requests a module's menu makes of the application, and lends it the collector
// and the settings store for what only an open menu shows.
class MenuModuleDelegate {
public:
    virtual ~MenuModuleDelegate() = default;
    virtual LoadSystemInformation& collector() = 0;
    virtual SettingsStore& settingsStore() = 0;
    // tabIndex: 0-based, in module registry order.
    virtual void openPreferenceTab(int tabIndex) = 0;
    // The sensor table worked out at start-up.
    virtual const SensorDatDict& sensorDatDict() const
    {
        static const SensorDatDict none;
        return none;
    }
    // Where messages to the user go; none where nothing can show them.
    virtual Notifier* notifier() { return nullptr; }
    // The colour theme in use, as stored in its file.
    virtual const QVariantMap& currentTheme() const = 0;
    // The pictures the status items show now, left to right.
    virtual QList<QImage> shownBarImages() const = 0;
    virtual void quitApplication() = 0;
    // Asks the project's site whether a newer version exists; the answer comes as a notification.
    virtual void checkForUpdates() {}
    // Opens the project's web site in the browser.
    virtual void visitWebSite() {}
    // Carries out the dynamic DNS list now, whatever the address; done gets a line saying how
    // it ended, on the main thread.
    virtual void forcedExecutionDdns(std::function<void(const QString& outcome)> done) { Q_UNUSED(done) }
    // The long-term history the graphs can show instead of the live samples; none where it is
    // not kept (snapshots, renders, tests).
    virtual HistoryReader* historyReader() { return nullptr; }
};

class MenuModule : public QObject {
    Q_OBJECT
public:
    MenuModule(MenuModuleDelegate* delegate, ModuleId id, QObject* parent = nullptr);
    ~MenuModule() override;

    // Handed the same dictionary every cycle: the typed settings are rebuilt only when it changed.
    void setMyDefaults(const ModuleDefaults& defaults)
    {
        if (settingsRead_ && defaults.sharesDataWith(myDefaults))
            return;
        myDefaults = defaults;
        settingsRead_ = true;
        settingsChanged();
    }
    // Takes this module's history from the sampled data; modules without one ignore it.
    virtual void setHistory(const InfoDict& info) { Q_UNUSED(info) }
    // The volume and disk descriptions, for modules that draw one set per disk or volume; the
    // menu's rows follow at its next opening.
    virtual void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes)
    {
        Q_UNUSED(disks)
        Q_UNUSED(volumes)
    }
    // Device pixels per point of the pictures: the screen's ratio unless set (renders choose theirs).
    void setPictureScale(qreal scale) { pictureScale_ = scale; }
    const ModuleDefaults& defaults() const { return myDefaults; }

    // Creates the menu and the status item, then builds the menu's items.
    void initDrawStatusBar(StatusBar& bar);
    // Every sampling tick: the picture, and the menu's contents while it is open.
    void cycleStatusMenu();
    // Recomputes and redraws the picture.
    virtual void refreshBar() = 0;
    // Draws again from what is described now, forgetting what was drawn (after a mount).
    virtual void resetAndRefreshBar() { refreshBar(); }

    ModuleId moduleId() const { return id_; }
    bool menuOpened() const { return menuOpened_; }
    void setMenuItemRefresh(bool refresh) { menuItemRefresh = refresh; }
    // Only the Temp module counts the sensors its menu shows.
    virtual void resetMenuNowCount() {}
    QMenu* menu() const { return statusMenu; }
    // The picture the status item shows now.
    const QImage& shownImage() const { return shownImage_; }
    // Whether one of the module's alert rules is firing: its picture then carries a mark. Told
    // every cycle; the picture is drawn again only when the answer changes.
    void setAlerting(bool alerting);
    bool alerting() const { return alerting_; }
    StatusItem* item() const { return statusItem.get(); }

    // The graph the open menu shows, drawn now; a null image for a module whose menu has none.
    QImage menuGraphImage() { return drawMenuGraph(); }

    // Closes an open menu whose rows no longer match what they describe (disks, volumes).
    void menuAutoClose();

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
