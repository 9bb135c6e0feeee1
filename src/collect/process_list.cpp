// Formats the busiest processes as a names column and a values column.
#include "collect/process_list.h"

#include "toolkit/value_format.h"

QStringList buildProcessList(const std::vector<ProcessRow>& rows, const ProcessDict& procDict, int displayLimit,
                             std::int32_t addValueMode)
{
    QString names;
    QString values;
    int count = 0;
    for (const ProcessRow& row : rows) {
        if (count >= displayLimit || row.value <= 0)
            break;
        const QString key = QStringLiteral("_%1").arg(row.pid);
        QString name = procDict.value(key).toString();
        if (name.isEmpty())
            name = QString::fromUtf8(row.command).simplified();
        if (name.isEmpty())
            name = QStringLiteral("(pid:%1)").arg(key);
        names += name + QLatin1Char('\n');
        if (addValueMode != -1)
            values += TvlClasses::calcMemorySize(static_cast<qint64>(row.value) * 1024, addValueMode);
        else
            values += QString::number(row.value, 'f', 1) + QLatin1Char('%');
        values += QLatin1Char('\n');
        ++count;
    }
    return {names, values};
}
