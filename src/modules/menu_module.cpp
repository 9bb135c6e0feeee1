// The shared status-item life cycle: creation, menu opening and closing, per-tick redraws.
#include "modules/menu_module.h"

#include "modules/module_registry.h"

#include <QGuiApplication>
#include <QMenu>

MenuModule::MenuModule(MenuModuleDelegate* delegate, ModuleId id, QObject* parent)
    : QObject(parent)
    , myDelegate(delegate)
    , id_(id)
{
    setObjectName(QString::fromLatin1(moduleSchema(id).moduleKey));
}

MenuModule::~MenuModule()
{
    // The item goes first, so no front end is left pointing at the menu.
    statusItem.reset();
    delete statusMenu;
}

void MenuModule::initDrawStatusBar(StatusBar& bar)
{
    // Parentless: a menu is a top-level window; the module deletes it.
    statusMenu = new QMenu();
    connect(statusMenu, &QMenu::aboutToShow, this, &MenuModule::menuWillOpen);
    connect(statusMenu, &QMenu::aboutToHide, this, &MenuModule::menuDidClose);
    statusItem = bar.createItem(objectName());
    statusItem->setMenu(statusMenu);
    drawBaseStatusBar();
}

void MenuModule::cycleStatusMenu()
{
    refreshBar();
    if (menuOpened_)
        redrawStatusItem();
}

void MenuModule::menuWillOpen()
{
    if (menuItemRefresh) {
        menuItemRefresh = false;
        drawBaseStatusBar();
    }
    menuOpened_ = true;
    refreshBar();
    prepareMenuOpening();
    redrawStatusItem();
}

void MenuModule::menuDidClose()
{
    menuOpened_ = false;
    refreshBar();
}

void MenuModule::openTab()
{
    if (myDelegate)
        myDelegate->openPreferenceTab(modulePreferenceTab(id_));
}

qreal MenuModule::pictureScale() const
{
    if (pictureScale_ > 0)
        return pictureScale_;
    return qGuiApp != nullptr ? qGuiApp->devicePixelRatio() : 1.0;
}

void MenuModule::showImage(const QImage& image)
{
    shownImage_ = image;
    if (statusItem)
        statusItem->setImage(image, menuOpened());
}

ModuleDefaults MenuModule::withMenuLayout() const
{
    ModuleDefaults defaults = myDefaults;
    for (auto it = mnDefaults.values().cbegin(); it != mnDefaults.values().cend(); ++it)
        defaults.set(it.key(), it.value());
    return defaults;
}

void MenuModule::menuAutoClose()
{
    if (!menuOpened())
        return;
    if (statusMenu)
        statusMenu->close();
    // A front end that shows the menu its own way may not report the close.
    if (menuOpened())
        menuDidClose();
}
