// The desktop's status items and preferences window, handed to the application controller.
#include "app/front_ends/desktop_parts.h"

#include "app/app_delegate.h"
#include "app/front_ends/preferences_window_host.h"
#include "modules/menu_module.h"
#include "modules/module_desktop_registry.h"

void attachDesktop(AppDelegate& delegate, StatusBar* bar)
{
    delegate.setStatusBar(bar, &createModuleItem);
    delegate.setPreferencesHost(std::make_unique<PreferencesWindowHost>(delegate));
}

MenuModule* menuModule(const AppDelegate& delegate, ModuleId id)
{
    return dynamic_cast<MenuModule*>(delegate.moduleItem(id));
}

PreferencesWindow* preferencesWindow(const AppDelegate& delegate)
{
    const auto* host = dynamic_cast<const PreferencesWindowHost*>(delegate.preferencesHost());
    return host != nullptr ? host->window() : nullptr;
}
