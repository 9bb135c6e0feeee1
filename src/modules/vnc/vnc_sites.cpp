// Reads the stored host records, skipping the incomplete ones an import or an edit may leave.
#include "modules/vnc/vnc_sites.h"

#include "prefs/pref_keys.h"

namespace TvlClasses {

QList<VncHost> retVncSite(const ModuleDefaults& dict, bool onMenuOnly)
{
    using namespace VncHostRecords;
    QList<VncHost> hosts;
    for (const QVariant& item : dict.listValue(QLatin1String(PrefKey::Vnc_ClientSortArray))) {
        const QVariantMap record = item.toMap();
        const VncHost host{record.value(QLatin1String(kName)).toString(), record.value(QLatin1String(kUrl)).toString(),
                           record.value(QLatin1String(kMenu)).toBool()};
        if (host.name.isEmpty() || host.url.isEmpty() || (onMenuOnly && !host.menu))
            continue;
        hosts.append(host);
    }
    return hosts;
}

} // namespace TvlClasses
