// The Network status item: width rule, picture, in-menu graph, traffic panel, interface rows.
#include "modules/network/network_menu_module.h"

#include "collect/load_system_information.h"
#include "modules/module_descriptor.h"
#include "modules/network/network_bar_width.h"
#include "modules/network/network_panel_rows.h"
#include "modules/network/network_theme_keys.h"
#include "modules/standard_menu_items.h"
#include "net/notifier.h"
#include "net/tvl_ret_global_ip_address.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

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
    : MenuModule(delegate, ModuleId::Network, parent)
{
    pool_.setMaxThreadCount(1);
    // The menu always shows one graph, 400 points wide, in the user's style and colours.
    mnDefaults.set(Network_Display_UdLabel, false);
    mnDefaults.set(Network_Display_UdCircle, false);
    mnDefaults.set(Network_Display_Graph, true);
    mnDefaults.set(Network_Display_Text, false);
    mnDefaults.set(Network_GraphWidth, qint64{400});
    mnDefaults.set(Network_ShowMyLabel, false);
}

Network_MenuModule::~Network_MenuModule()
{
    pool_.waitForDone();
}

void Network_MenuModule::setHistory(const InfoDict& info)
{
    const History<NetworkSample> history = moduleHistory<NetworkSample>(info, ModuleId::Network);
    if (history.exists())
        setResumeArray(history);
}

void Network_MenuModule::setResumeArray(const History<NetworkSample>& history)
{
    resumeArray = history;
}

void Network_MenuModule::setNetworkBaseDict(std::shared_ptr<const NetworkBase> base)
{
    networkBaseDict = std::move(base);
}

NetworkRates Network_MenuModule::retNowUpDwBytes() const
{
    return currentNetworkRates(resumeArray);
}

void Network_MenuModule::drawBaseStatusBar()
{
    removeNicMenus();
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(statusMenu, myDefaults, myDefaults.boolValue(Network_EnaMenu_Amon),
                                           myDefaults.boolValue(Network_EnaMenu_Cnsl),
                                           myDefaults.boolValue(Network_EnaMenu_Tmnl), [this] { openTab(); });
    if (const auto settings = networkSettingsProgram()) {
        QAction* item = statusMenu->addAction(Tarvel::localized("Open Network Settings"));
        const ThemePicture icon = myDefaults.picture(NetworkThemeKey::O22);
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
    auto* graphAction = new QWidgetAction(statusMenu);
    menuGraph_ = new QLabel();
    menuGraph_->setFixedSize(static_cast<int>(mnDefaults.intValue(Network_GraphWidth)),
                             static_cast<int>(kMenuGraphHeight));
    graphAction->setDefaultWidget(menuGraph_);
    statusMenu->addAction(graphAction);
    auto* panelAction = new QWidgetAction(statusMenu);
    networkCurrent = new Network_Current();
    networkCurrent->setGlobalAddress(globalAddress_);
    panelAction->setDefaultWidget(networkCurrent);
    statusMenu->addAction(panelAction);
    nicSeparator_ = statusMenu->addSeparator();
    listedBase_.reset();
    redrawStatusItem();
}

void Network_MenuModule::refreshBar()
{
    if (!settings_.barDrawable() || !statusItem)
        return;
    const double height = TvlClasses::retRootMenuHeight();
    const NetworkRates now = retNowUpDwBytes();
    imageNetworkBar.redrawWithSize(QSizeF(networkBarWidth(settings_.bar), height),
                                   TvlClasses::retStatusMenuInsets(networkShownElementCount(settings_.bar)),
                                   menuOpened(), true, settings_.bar, resumeArray, now);
    showImage(imageNetworkBar.image(pictureScale()));
    if (!resumeArray.empty())
        statusItem->setText(networkBarText(now, settings_.bar.bits));
}

void Network_MenuModule::prepareMenuOpening()
{
    settings_.keepForOpenMenu();
    if (myDelegate != nullptr)
        networkBaseDict = myDelegate->collector().networkBaseDict();
    lookUpNames();
}

QImage Network_MenuModule::menuGraph(const NetworkPictureSettings& settings)
{
    imageNetworkMenu.redrawWithSize(QSizeF(settings_.menu.graphWidth, kMenuGraphHeight),
                                    TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray,
                                    retNowUpDwBytes());
    return imageNetworkMenu.image(pictureScale());
}

void Network_MenuModule::redrawStatusItem()
{
    if (!menuOpened())
        return;
    if (menuGraph_ != nullptr && !showHistoryGraph(menuGraph_))
        menuGraph_->setPixmap(QPixmap::fromImage(menuGraph(settings_.openMenu)));
    if (networkCurrent != nullptr)
        networkCurrent->replaceData(settings_.bar, resumeArray);
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
    for (const NicRow& row : networkInterfaceRows(*networkBaseDict, settings_.bar.showAllNic, hostNames_)) {
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
                const QString text = result.ip.isEmpty() ? Tarvel::localized("No address service answered.") : result.ip;
                notifier->fireNotification({Tarvel::localized("Global IP Address"), text, {}, {}});
            }
        });
}
