// Slot filling for messages whose translations keep the "%@" placeholders.
#include "net/format_objects.h"

QString fillObjects(const QString& format, const QStringList& values)
{
    const QLatin1String slot("%@");
    QString out;
    qsizetype from = 0;
    for (const QString& value : values) {
        const qsizetype at = format.indexOf(slot, from);
        if (at < 0)
            break;
        out += QStringView(format).mid(from, at - from);
        out += value;
        from = at + slot.size();
    }
    out += QStringView(format).mid(from);
    return out;
}
