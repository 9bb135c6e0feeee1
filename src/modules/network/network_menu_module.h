// The Network drop-down: the rate graph, the traffic panel and a submenu per interface.
#pragma once

#include "collect/network_base.h"
#include "modules/menu_module.h"
#include "modules/network/network_current.h"
#include "modules/network/network_module_picture.h"

#include <QHash>
#include <QThreadPool>

#include <memory>

class QAction;
class QLabel;

class Network_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit Network_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);
    ~Network_MenuModule() override;

    NetworkModulePicture& networkPicture() const { return network_; }
    // The interfaces the menu lists; taken from the collector while the menu is open when the
    // module has a delegate.
    void setNetworkBaseDict(std::shared_ptr<const NetworkBase> base);

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

private:
    void removeNicMenus();
    void addtionalNicMenus();
    void lookUpNames();
    // Looks the global address up once and shows it in the panel and as a notification.
    void checkGlobalIp();

    NetworkModulePicture& network_;
    QLabel* menuGraph_ = nullptr;              // owned by the menu through its widget action
    Network_Current* networkCurrent = nullptr; // likewise
    QAction* nicSeparator_ = nullptr;
    QList<QMenu*> nicMenus_;
    std::shared_ptr<const NetworkBase> networkBaseDict;
    std::shared_ptr<const NetworkBase> listedBase_;
    QHash<QString, QString> hostNames_;
    QString globalAddress_ = QStringLiteral("---"); // as last looked up
    bool lookUpInFlight_ = false;
    // Last member: its destructor waits for look-ups that use the members above.
    QThreadPool pool_;
};
