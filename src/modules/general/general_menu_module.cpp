// The General item's menu holds the application's commands.
#include "modules/general/general_menu_module.h"

#include "prefs/theme_files.h"
#include "toolkit/localization.h"
#include "toolkit/program_path.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMenu>
#include <QUrl>

General_MenuModule::General_MenuModule(MenuModuleDelegate* delegate, QObject* parent)
    : MenuModule(delegate, std::make_unique<GeneralModulePicture>(delegate), parent)
{}

void General_MenuModule::drawBaseStatusBar()
{
    statusMenu->clear();
    const auto add = [this](const char* text, void (General_MenuModule::*action)(), const char* icon = nullptr) {
        QAction* item = statusMenu->addAction(Tarvel::localized(text));
        if (icon != nullptr) {
            const ThemePicture picture = defaults().picture(QLatin1String(icon));
            if (!picture.image.isNull())
                item->setIcon(QIcon(QPixmap::fromImage(picture.image)));
        }
        connect(item, &QAction::triggered, this, action);
    };
    add(Tarvel::textKey("Preferences..."), &General_MenuModule::openTab, "O01");
    add(Tarvel::textKey("Check for Updates..."), &General_MenuModule::checkUpdate, "O02");
    add(Tarvel::textKey("Visit the Web Site"), &General_MenuModule::visitWebSite);
    statusMenu->addSeparator();
    add(Tarvel::textKey("Open the Settings Folder"), &General_MenuModule::openAsDir);
    add(Tarvel::textKey("Show Where Tarvel Runs From"), &General_MenuModule::openDirContMyself);
    statusMenu->addSeparator();
    add(Tarvel::textKey("Quit"), &General_MenuModule::quitMySelf);
    // The controller never redraws this item on its own, so its picture is set with its menu.
    refreshBar();
}

void General_MenuModule::checkUpdate()
{
    if (myDelegate)
        myDelegate->checkForUpdates();
}

void General_MenuModule::visitWebSite()
{
    if (myDelegate)
        myDelegate->visitWebSite();
}

void General_MenuModule::openAsDir()
{
    TvlClasses::checkMyApplicationSupportDir();
    QDesktopServices::openUrl(QUrl::fromLocalFile(TvlClasses::retApplicationSupportDir()));
}

void General_MenuModule::openDirContMyself()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(Tarvel::programPath()).absolutePath()));
}

void General_MenuModule::quitMySelf()
{
    if (myDelegate)
        myDelegate->quitApplication();
}
