// The modules' desktop parts, from the same one list as their descriptors.
#include "modules/module_desktop_registry.h"

#include "modules/module_registry.h"
#include "preferences/unbuilt_module_tab.h"

#include <array>

#define TARVEL_MODULE(name) const ModuleDesktop& name##Desktop();
#include "modules/module_list.h"
#undef TARVEL_MODULE

namespace {

using DesktopRegistry = std::array<const ModuleDesktop*, kModuleCount>;

DesktopRegistry buildDesktopRegistry()
{
    DesktopRegistry registry{};
    std::size_t next = 0;
#define TARVEL_MODULE(name) registry.at(next++) = &name##Desktop();
#include "modules/module_list.h"
#undef TARVEL_MODULE
    return registry;
}

const ModuleDesktop& moduleDesktop(ModuleId id)
{
    static const DesktopRegistry registry = buildDesktopRegistry();
    return *registry[moduleIndex(id)];
}

} // namespace

std::unique_ptr<MenuModule> createMenuModule(ModuleId id, MenuModuleDelegate* delegate)
{
    const ModuleDesktop& desktop = moduleDesktop(id);
    return desktop.createMenuModule != nullptr ? desktop.createMenuModule(delegate) : nullptr;
}

std::unique_ptr<ModuleItem> createModuleItem(ModuleId id, MenuModuleDelegate* delegate)
{
    return createMenuModule(id, delegate);
}

bool moduleHasStatusItem(ModuleId id)
{
    return moduleDesktop(id).createMenuModule != nullptr;
}

PreferenceTab* createPreferenceTab(ModuleId id, MenuModuleDelegate* delegate, SettingsStore& store,
                                   PrefNotificationCenter& center)
{
    const ModuleDesktop& desktop = moduleDesktop(id);
    if (desktop.createPreferenceTab != nullptr)
        return desktop.createPreferenceTab(delegate, store, center);
    return new UnbuiltModuleTab(moduleSchema(id), store, center);
}
