// The Network drop-down: standard items, the in-menu graph, the traffic panel, interface rows.
#include "modules/network/network_menu_module.h"

#include "collect/load_system_information.h"
#include "modules/network/network_panel_rows.h"
#include "modules/network/network_theme_keys.h"
#include "modules/standard_menu_items.h"
#include "net/notifier.h"
#include "net/tvl_ret_global_ip_address.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QProcess>
#include <QStandardPaths>
#include <QWidgetAction>

#include <optional>
#include <utility>

using namespace PrefKey;

namespace {

struct SettingsProgram {
    const char* program;
    QStringList arguments;
};

// The desktop's network settings, tried in order of how common they are.
std::optional<SettingsProgram> networkSettingsProgram()
{
    static const SettingsProgram candidates[] = {{"nm-connection-editor", {}},
                                                 {"gnome-control-center", {QStringLiteral("network")}},
                                                 {"kcmshell6", {QStringLiteral("kcm_networkmanagement")}},
                                                 {"kcmshell5", {QStringLiteral("kcm_networkmanagement")}}};
    for (const SettingsProgram& candidate : candidates) {
        if (!QStandardPaths::findExecutable(QLatin1String(candidate.program)).isEmpty())
            return candidate;
    }
    return std::nullopt;
}

} // namespace

Network_MenuModule::Network_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, std::make_unique<NetworkModulePicture>(delegate), parent)
    , network_(static_cast<NetworkModulePicture&>(picture()))
{
    pool_.setMaxThreadCount(1);
}

Network_MenuModule::~Network_MenuModule()
{
    pool_.waitForDone();
}

void Network_MenuModule::setNetworkBaseDict(std::shared_ptr<const NetworkBase> base)
{
    networkBaseDict = std::move(base);
}

void Network_MenuModule::drawBaseStatusBar()
{
    removeNicMenus();
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, defaults(), defaults().boolValue(Network_EnaMenu_Amon),
                                           defaults().boolValue(Network_EnaMenu_Cnsl),
                                           defaults().boolValue(Network_EnaMenu_Tmnl), [this] { openTab(); });
    if (const auto settings = networkSettingsProgram()) {
        QAction* item = statusMenu->addAction(Tarvel::localized("Open Network Settings"));
        const ThemePicture icon = defaults().picture(NetworkThemeKey::O22);
        if (!icon.image.isNull())
            item->setIcon(QIcon(QPixmap::fromImage(icon.image)));
        connect(item, &QAction::triggered, this,
                [settings] { QProcess::startDetached(QLatin1String(settings->program), settings->arguments); });
    }
    if (myDelegate != nullptr) {
        QAction* lookUp = statusMenu->addAction(Tarvel::localized("Look Up the Global IP Address"));
        connect(lookUp, &QAction::triggered, this, &Network_MenuModule::checkGlobalIp);
    }
    statusMenu->addSeparator();
    addHistoryChoice();
    menuGraph_ = addMenuGraph(Network_GraphWidth);
    auto* panelAction = new QWidgetAction(statusMenu);
    networkCurrent = new Network_Current();
    networkCurrent->setGlobalAddress(globalAddress_);
    panelAction->setDefaultWidget(networkCurrent);
    statusMenu->addAction(panelAction);
    nicSeparator_ = statusMenu->addSeparator();
    listedBase_.reset();
    redrawStatusItem();
}

void Network_MenuModule::prepareMenuOpening()
{
    if (myDelegate != nullptr)
        networkBaseDict = myDelegate->collector().networkBaseDict();
    lookUpNames();
}

void Network_MenuModule::redrawStatusItem()
{
    if (!menuOpened())
        return;
    showOpenMenuGraph(menuGraph_);
    if (networkCurrent != nullptr)
        networkCurrent->replaceData(network_.settings().bar, network_.history());
    if (myDelegate != nullptr)
        networkBaseDict = myDelegate->collector().networkBaseDict();
    // The base is replaced, never changed, when an interface changes: a new one means new rows.
    if (networkBaseDict != listedBase_)
        addtionalNicMenus();
}

void Network_MenuModule::removeNicMenus()
{
    for (QMenu* menu : std::as_const(nicMenus_)) {
        if (statusMenu != nullptr)
            statusMenu->removeAction(menu->menuAction());
        // A submenu may be on screen right now: it goes once the event loop is back.
        menu->deleteLater();
    }
    nicMenus_.clear();
}

void Network_MenuModule::addtionalNicMenus()
{
    removeNicMenus();
    listedBase_ = networkBaseDict;
    if (statusMenu == nullptr || !networkBaseDict)
        return;
    for (const NicRow& row : networkInterfaceRows(*networkBaseDict, network_.settings().bar.showAllNic, hostNames_)) {
        auto* menu = new QMenu(row.title, statusMenu);
        for (const auto& [title, value] : row.lines) {
            // Choosing a line copies its value, an address most often.
            QAction* line = menu->addAction(QStringLiteral("%1: %2").arg(title, value));
            connect(line, &QAction::triggered, this, [value] { QGuiApplication::clipboard()->setText(value); });
        }
        statusMenu->addMenu(menu);
        nicMenus_.append(menu);
    }
    if (nicSeparator_ != nullptr)
        nicSeparator_->setVisible(!nicMenus_.isEmpty());
}

void Network_MenuModule::lookUpNames()
{
    if (lookUpInFlight_ || !networkBaseDict)
        return;
    lookUpInFlight_ = true;
    QStringList addresses;
    for (const auto& [name, entry] : *networkBaseDict) {
        if (entry.nic && entry.nic->linkstatus == QLatin1String("Active") && entry.ip && entry.ip->ipv4)
            addresses << *entry.ip->ipv4;
    }
    // Both wait on other processes (the system bus, the resolver): never on the menu's thread.
    pool_.start([this, addresses] {
        const QString location = LoadSystemInformation::getCurrentNetworkLocation();
        QHash<QString, QString> names;
        for (const QString& address : addresses) {
            if (const auto host = LoadSystemInformation::getHostNameFromIpAddress(address))
                names.insert(address, *host);
        }
        QMetaObject::invokeMethod(
            this,
            [this, location, names] {
                lookUpInFlight_ = false;
                if (networkCurrent != nullptr)
                    networkCurrent->setLocation(location);
                hostNames_ = names;
                if (menuOpened())
                    addtionalNicMenus();
                Q_EMIT namesLookedUp();
            },
            Qt::QueuedConnection);
    });
}

void Network_MenuModule::checkGlobalIp()
{
    // Only on the user's word: the monitor asks no outside service by itself.
    TvlRetGlobalIpAddress::lookUpOnce(
        new TvlRetGlobalIpAddress(myDelegate->settingsStore()),
        [this, self = QPointer<Network_MenuModule>(this)](const GlobalIpResult& result) {
            if (!self)
                return;
            const QString shown = result.ip.isEmpty() ? QStringLiteral("---") : result.ip;
            globalAddress_ = shown;
            if (networkCurrent != nullptr)
                networkCurrent->setGlobalAddress(shown);
            if (Notifier* notifier = myDelegate->notifier()) {
                const QString text =
                    result.ip.isEmpty() ? Tarvel::localized("No address service answered.") : result.ip;
                notifier->fireNotification({Tarvel::localized("Global IP Address"), text, {}, {}});
            }
        });
}
