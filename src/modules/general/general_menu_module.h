// The application's own status item: its picture and the application-wide commands.
#pragma once

#include "modules/general/general_item_text.h"
#include "modules/menu_module.h"

class General_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit General_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void refreshBar() override;

protected:
    void drawBaseStatusBar() override;

private:
    // The name with the running version and where the settings are kept: where no picture
    // shows (the text view, tooltips) that is the useful part.
    QString itemText() const;
    void checkUpdate();
    void visitWebSite();
    // The file manager at the folder of the settings and the theme files.
    void openAsDir();
    // The file manager at the folder of the running program.
    void openDirContMyself();
    void quitMySelf();
};
