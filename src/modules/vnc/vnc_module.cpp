// The VNC module: its settings so far; its host menu and tab come with the screen-sharing hosts.
#include "modules/module_descriptor.h"
#include "prefs/pref_keys.h"

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

ModuleSchema vncSchema()
{
    auto pictures = sharedPictures("L08", {{"O41", PictureSize::Icon18}, {"O42", PictureSize::Icon18}});
    pictures.insert(pictures.begin(), {"N03", PictureSize::Half});
    return {ModuleId::Vnc,
            "VNC",
            LaunchVNC,
            8,
            "VNCModuleNotif",
            "VNC",
            nullptr,
            withToolItems({{Vnc_ShowMenu, T::Bool, false},
                           {Vnc_AddMenuOpenAll, T::Bool, false},
                           {Vnc_ClientSortArray, T::Array, QVariant()}},
                          Vnc_EnaMenu_Amon, Vnc_EnaMenu_Cnsl, Vnc_EnaMenu_Tmnl),
            colors({}),
            pictures,
            {Vnc_ShowMenu},
            nullptr};
}

} // namespace

const ModuleDescriptor& vncModule()
{
    static const ModuleDescriptor descriptor{vncSchema()};
    return descriptor;
}
