// The application's own status item's drop-down: the application-wide commands.
#pragma once

#include "modules/general/general_module_picture.h"
#include "modules/menu_module.h"

class General_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit General_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

protected:
    void drawBaseStatusBar() override;

private:
    void checkUpdate();
    void visitWebSite();
    // The file manager at the folder of the settings and the theme files.
    void openAsDir();
    // The file manager at the folder of the running program.
    void openDirContMyself();
    void quitMySelf();
};
