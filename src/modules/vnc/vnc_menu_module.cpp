// The VNC drop-down: the viewer item, and the host rows rebuilt whenever the menu opens.
#include "modules/vnc/vnc_menu_module.h"

#include "modules/standard_menu_items.h"
#include "modules/vnc/vnc_menu_item.h"
#include "modules/vnc/vnc_screen_sharing.h"
#include "modules/vnc/vnc_sites.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QGuiApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>

using namespace PrefKey;

namespace {

// Below the host rows' tags, so rebuilding the rows leaves it in place.
constexpr int kOpenViewerTag = 110;

QIcon themeIcon(const ModuleDefaults& defaults, const char* key, bool templated)
{
    const QImage image = themePictureImage(defaults.picture(QLatin1String(key)));
    if (image.isNull())
        return {};
    QIcon icon(QPixmap::fromImage(image));
    icon.setIsMask(templated);
    return icon;
}

} // namespace

VNC_MenuModule::VNC_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, std::make_unique<VncModulePicture>(delegate), parent)
    , opener_([this](const QStringList& urls) {
        // One notice is enough when no viewer is registered for the first address.
        for (const QString& url : urls) {
            if (!TvlClasses::goScreenSharingApp(url, notifier()))
                break;
        }
    })
    , modifiers_([] { return QGuiApplication::queryKeyboardModifiers(); })
{}

Notifier* VNC_MenuModule::notifier() const
{
    return myDelegate != nullptr ? myDelegate->notifier() : nullptr;
}

void VNC_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    GeneralFunctions::addStandardMenuItems(
        statusMenu, defaults(), defaults().boolValue(QLatin1String(Vnc_EnaMenu_Amon)),
        defaults().boolValue(QLatin1String(Vnc_EnaMenu_Cnsl)), defaults().boolValue(QLatin1String(Vnc_EnaMenu_Tmnl)),
        [this] { openTab(); });
    QAction* viewer = statusMenu->addAction(Tarvel::localized("Open VNC Viewer"));
    viewer->setData(kOpenViewerTag);
    connect(viewer, &QAction::triggered, this, &VNC_MenuModule::openScreenSharing);
    // The sharing settings item has no counterpart here: Linux desktops have no one place where
    // screen sharing is switched on.
    addtionalVncMenus();
    refreshBar();
}

void VNC_MenuModule::addtionalVncMenus()
{
    if (!statusMenu)
        return;
    for (QAction* action : statusMenu->actions()) {
        if (action->isSeparator() || action->data().toInt() >= FirstAddedVncTag)
            delete action;
    }
    const bool everyHost = modifiers_().testFlag(Qt::AltModifier);
    const QList<VncHost> hosts = TvlClasses::retVncSite(defaults(), !everyHost);
    if (hosts.isEmpty())
        return;
    statusMenu->addSeparator();
    const QIcon hostIcon = themeIcon(defaults(), "O41", true);
    int number = 0;
    for (const VncHost& host : hosts) {
        const QString prefix = !everyHost ? QString() : QLatin1String(host.menu ? "+ " : "- ");
        auto* item = new VNC_MenuItem(prefix + host.name, FirstAddedVncTag + ++number, statusMenu);
        item->setServerName(host.name);
        item->setServerUrl(host.url);
        item->setIcon(hostIcon);
        connect(item, &QAction::triggered, this, [this, item] { selectVncMenuItem(item); });
        statusMenu->addAction(item);
    }
    if (defaults().boolValue(QLatin1String(Vnc_AddMenuOpenAll)) && hosts.size() >= 2) {
        auto* all = new VNC_MenuItem(Tarvel::localized("Open All of Servers at Once"), OpenAllVncTag, statusMenu);
        all->setIcon(themeIcon(defaults(), "O42", false));
        connect(all, &QAction::triggered, this, [this, all] { selectVncMenuItem(all); });
        statusMenu->addAction(all);
    }
}

void VNC_MenuModule::selectVncMenuItem(const VNC_MenuItem* item)
{
    if (item == nullptr || !opener_ || !statusMenu)
        return;
    if (item->tag() != OpenAllVncTag) {
        opener_({item->serverUrl()});
        return;
    }
    QStringList urls;
    for (QAction* action : statusMenu->actions()) {
        const auto* host = qobject_cast<VNC_MenuItem*>(action);
        if (host != nullptr && host->tag() >= FirstVncHostTag && host->tag() <= LastVncHostTag)
            urls.append(host->serverUrl());
    }
    opener_(urls);
}

void VNC_MenuModule::openScreenSharing()
{
    TvlClasses::openScreenSharing(notifier());
}
