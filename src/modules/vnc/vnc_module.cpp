// The VNC module: its settings, its status item and tab, and the hosts its snapshot lists.
#include "modules/module_descriptor.h"
#include "modules/vnc/vnc_module_picture.h"
#include "modules/vnc/vnc_sites.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QJsonArray>

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
            Tarvel::textKey("VNC"),
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

// The hosts as the normal menu lists them.
QString vncSnapshotText(const SnapshotContext& context)
{
    QString out = QStringLiteral("VNC\n");
    const QList<VncHost> hosts = TvlClasses::retVncSite(context.settings, true);
    if (hosts.isEmpty())
        return out + QStringLiteral("  no hosts\n");
    for (const VncHost& host : hosts)
        out += QStringLiteral("  ") + host.name + QStringLiteral("  ") + host.url + QLatin1Char('\n');
    return out;
}

// The item names itself: the hosts are in its menu.
QString vncBarLine(const SnapshotContext& context, const SettingsStore&)
{
    return context.settings.stringValue(QLatin1String(PrefName));
}

void addVncSnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    QJsonArray hosts;
    for (const VncHost& host : TvlClasses::retVncSite(context.settings, true))
        hosts.append(QJsonObject{{QStringLiteral("name"), host.name}, {QStringLiteral("url"), host.url}});
    root.insert(QLatin1String(context.key), hosts);
}

} // namespace

const ModuleDescriptor& vncModule()
{
    static const ModuleDescriptor descriptor{vncSchema(),
                                             nullptr,
                                             false,
                                             StorageUse::None,
                                             &makePlainSnapshot<&vncSnapshotText, &addVncSnapshotJson>,
                                             nullptr,
                                             &vncBarLine,
                                             &makePicture<VncModulePicture>};
    return descriptor;
}
