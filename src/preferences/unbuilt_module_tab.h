// The tab of a module whose settings do not exist on this system yet.
#pragma once

#include "preferences/preference_tab.h"

class UnbuiltModuleTab : public PreferenceTab {
    Q_OBJECT
public:
    UnbuiltModuleTab(const ModuleSchema& schema, SettingsStore& store, PrefNotificationCenter& center,
                     QWidget* parent = nullptr);

protected:
    void loadViews() override {}
};
