// The General item shows the application's picture; its menu holds the application's commands.
#include "modules/general/general_menu_module.h"

#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QMenu>

General_MenuModule::General_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, ModuleId::General, parent)
{}

void General_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    QAction* preferences = statusMenu->addAction(localized("Preferences..."));
    connect(preferences, &QAction::triggered, this, &General_MenuModule::openTab);
    statusMenu->addSeparator();
    QAction* quit = statusMenu->addAction(localized("Quit"));
    connect(quit, &QAction::triggered, this, &General_MenuModule::quitMySelf);
    // The controller never redraws this item on its own, so its picture is set with its menu.
    refreshBar();
}

void General_MenuModule::refreshBar()
{
    if (!statusItem)
        return;
    const ThemePicture picture = myDefaults.picture(QString::fromLatin1("N01"));
    QImage image = picture.image;
    if (!image.isNull() && picture.size.width() > 0)
        image.setDevicePixelRatio(image.width() / picture.size.width());
    showImage(image);
    statusItem->setText(myDefaults.stringValue(PrefKey::PrefName));
}

void General_MenuModule::quitMySelf()
{
    if (myDelegate)
        myDelegate->quitApplication();
}
