// A module tab's switches for the desktop tools' menu items, named after the applications they add.
#pragma once

#include <array>
#include <functional>

class QCheckBox;
class QLayout;

namespace DesktopToolSwitch {

// The switches of the system monitor, the log viewer and the terminal, in menu order, for the
// keys given in that order; makeSwitch makes a switch that stores its key. Each is named after
// what its menu item will open; where the desktop has no such application it is disabled and a
// note beside it says so.
void addRows(QLayout* layout, const std::array<const char*, 3>& keys,
             const std::function<QCheckBox*(const char* key)>& makeSwitch);

} // namespace DesktopToolSwitch
