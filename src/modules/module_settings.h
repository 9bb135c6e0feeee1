// A module's typed settings in the three states its pictures are drawn in.
#pragma once

#include "prefs/module_defaults.h"

// The bar's settings; the in-menu graph's, which are the bar's with the menu's fixed layout laid
// over them; and a copy of the latter taken when the menu opened, which the open menu's graph
// keeps until it closes. Settings has a builder reading it from a dictionary once.
template <class Settings> struct ModuleSettings {
    Settings bar;
    Settings menu;
    Settings openMenu;

    void read(Settings (*build)(const ModuleDefaults&), const ModuleDefaults& defaults,
              const ModuleDefaults& withMenuLayout)
    {
        bar = build(defaults);
        menu = build(withMenuLayout);
    }
    void keepForOpenMenu() { openMenu = menu; }
    // Settings were read, and they put some element in the bar.
    bool barDrawable() const { return bar.loaded && !bar.order.isEmpty(); }
};
