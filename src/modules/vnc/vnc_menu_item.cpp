// A host row keeps its tag where every menu item of the application keeps it: on its data.
#include "modules/vnc/vnc_menu_item.h"

VNC_MenuItem::VNC_MenuItem(const QString& title, int tag, QObject* parent)
    : QAction(title, parent)
{
    setData(tag);
}
