// The Network status item: its picture in the bar, and its menu with the rate graph, the traffic
// panel and a submenu per interface.
#pragma once

#include "collect/history.h"
#include "collect/network_base.h"
#include "collect/network_sample.h"
#include "modules/menu_module.h"
#include "modules/module_settings.h"
#include "modules/network/image_network_bar.h"
#include "modules/network/network_current.h"

#include <QHash>
#include <QThreadPool>

#include <memory>

class QAction;
class QLabel;

// Settings whose values the picture gives a meaning to:
//   Network_UdLabel_Mode: the label pair, 1 "Up"/"Dw", 2 "Upload"/"Download", 3 "Out"/"In",
//   4 "Send"/"Receive".
//   Network_Graph_Mode: the graph style, see NetworkGraphKind.
//   Network_Text_Mode: 1 bytes per second, 2 bits per second.
//   Network_Limen_Base: KB/s below which the lamps stay off and the graph draws nothing.
//   Network_ShowAllNic: list every interface in the menu, not only those whose link is up.
class Network_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit Network_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);
    ~Network_MenuModule() override;

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<NetworkSample>& history);
    // The interfaces the menu lists; taken from the collector while the menu is open when the
    // module has a delegate.
    void setNetworkBaseDict(std::shared_ptr<const NetworkBase> base);
    void refreshBar() override;

    // The rates the picture shows now, bytes per second.
    NetworkRates retNowUpDwBytes() const;
    Network_Current* currentView() const { return networkCurrent; }
    // The interface submenus in the menu now.
    const QList<QMenu*>& nicMenus() const { return nicMenus_; }

Q_SIGNALS:
    // The background look-ups of the location and the host names have been shown.
    void namesLookedUp();

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;
    void prepareMenuOpening() override;
    void settingsChanged() override { settings_.read(networkPictureSettings, myDefaults, withMenuLayout()); }
    QImage drawMenuGraph() override { return menuGraph(settings_.menu); }

private:
    static constexpr double kMenuGraphHeight = 20;

    QImage menuGraph(const NetworkPictureSettings& settings);
    void removeNicMenus();
    void addtionalNicMenus();
    void lookUpNames();
    // Looks the global address up once and shows it in the panel and as a notification.
    void checkGlobalIp();

    ImageNetworkBar imageNetworkBar;
    ImageNetworkBar imageNetworkMenu;
    QLabel* menuGraph_ = nullptr;              // owned by the menu through its widget action
    Network_Current* networkCurrent = nullptr; // likewise
    QAction* nicSeparator_ = nullptr;
    QList<QMenu*> nicMenus_;
    History<NetworkSample> resumeArray;
    ModuleSettings<NetworkPictureSettings> settings_;
    std::shared_ptr<const NetworkBase> networkBaseDict;
    std::shared_ptr<const NetworkBase> listedBase_;
    QHash<QString, QString> hostNames_;
    QString globalAddress_ = QStringLiteral("---"); // as last looked up
    bool lookUpInFlight_ = false;
    // Last member: its destructor waits for look-ups that use the members above.
    QThreadPool pool_;
};
