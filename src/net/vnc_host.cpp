// The stored form of imported screen-sharing hosts.
#include "net/vnc_host.h"

namespace VncHostRecords {

QVariantMap importedRecord(const VncHost& host)
{
    return {{QLatin1String(kName), host.name}, {QLatin1String(kUrl), host.url}};
}

QVariantList appendImported(QVariantList stored, const QList<VncHost>& imported)
{
    for (const VncHost& host : imported)
        stored.append(importedRecord(host));
    return stored;
}

} // namespace VncHostRecords
