// The VNC status item's drop-down: the user's screen-sharing hosts.
#pragma once

#include "modules/menu_module.h"
#include "modules/vnc/vnc_module_picture.h"

#include <QStringList>

#include <functional>

class VNC_MenuItem;

// Settings it reads: Vnc_ClientSortArray (the hosts), Vnc_AddMenuOpenAll, the three tool-item
// switches, PrefName, and the pictures N03 (L08 where a theme has none), O41 and O42.
class VNC_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    // Opens the hosts' addresses, in the given order.
    using Opener = std::function<void(const QStringList& urls)>;
    using ModifierQuery = std::function<Qt::KeyboardModifiers()>;

    explicit VNC_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    // Replaces the host rows: every separator and every item tagged 300 or more goes, then the
    // hosts follow a separator (with Alt held, all of them, marked "+ " when shown in the menu
    // and "- " when not), then the open-all item when it is switched on and there are two or more.
    void addtionalVncMenus();
    // A host row's action; the open-all item opens every host row of the menu, top to bottom.
    void selectVncMenuItem(const VNC_MenuItem* item);

    void setOpener(Opener opener) { opener_ = std::move(opener); }
    void setModifierQuery(ModifierQuery query) { modifiers_ = std::move(query); }

protected:
    void drawBaseStatusBar() override;
    // The rows follow the settings and the Alt key at each opening.
    void prepareMenuOpening() override { addtionalVncMenus(); }

private:
    Notifier* notifier() const;
    void openScreenSharing();

    Opener opener_;
    ModifierQuery modifiers_;
};
