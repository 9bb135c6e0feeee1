// The sensor table's model choice, name merge and listing, as pure functions.
#include "collect/sensor_table.h"

#include "collect/smc_sensor_names.h"

#include <QHash>

#include <algorithm>

namespace {

bool lessIgnoringCase(const QString& a, const QString& b)
{
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
}

// Keys in the order they were first named, with the index of each for the "not yet present" test.
class NamedKeys {
public:
    bool contains(const QString& key) const { return index_.contains(key); }
    void add(TempSensorEntry entry)
    {
        if (contains(entry.key))
            return;
        index_.insert(entry.key, entries_.size());
        entries_.append(std::move(entry));
    }
    TempSensorEntry* find(const QString& key)
    {
        const auto at = index_.find(key);
        return at == index_.end() ? nullptr : &entries_[*at];
    }
    QList<TempSensorEntry> take() { return std::move(entries_); }

private:
    QList<TempSensorEntry> entries_;
    QHash<QString, qsizetype> index_;
};

void addFileNames(NamedKeys& named, const QList<SensorDatModel>& file, const QString& macRawName)
{
    QStringList sorted;
    for (const SensorDatModel& model : file)
        sorted.append(model.name);
    std::stable_sort(sorted.begin(), sorted.end(), lessIgnoringCase);
    const QString chosen = chooseSensorModel(sorted, macRawName);
    QStringList order{chosen};
    for (auto it = sorted.crbegin(); it != sorted.crend(); ++it)
        if (*it != chosen)
            order.append(*it);
    for (const QString& modelName : order) {
        const auto model = std::find_if(file.begin(), file.end(),
                                        [&modelName](const SensorDatModel& m) { return m.name == modelName; });
        if (model == file.end())
            continue;
        for (const auto& [key, name] : model->tempData)
            if (key.size() == 4)
                named.add({key, name.trimmed(), {}, {}, {}});
    }
}

} // namespace

QString modelFamily(const QString& macRawName)
{
    qsizetype end = 0;
    while (end < macRawName.size() && macRawName[end] != u',' && !(macRawName[end] >= u'0' && macRawName[end] <= u'9'))
        ++end;
    return macRawName.left(end);
}

QString chooseSensorModel(const QStringList& sortedModels, const QString& macRawName)
{
    const QString family = modelFamily(macRawName);
    QString choice;
    for (const QString& model : sortedModels) {
        if (model.size() < family.size() || QString::compare(model.left(family.size()), family, Qt::CaseInsensitive) != 0)
            continue;
        choice = model;
        // Compared with the lower-cased name, so a mixed-case identifier never stops the walk early.
        if (macRawName == model.toLower())
            return choice;
    }
    if (!choice.isEmpty())
        return choice;
    for (auto it = sortedModels.crbegin(); it != sortedModels.crend(); ++it) {
        const QString head = it->left(6);
        if (it->size() < 6 || (QString::compare(head, u"xserve", Qt::CaseInsensitive) != 0 &&
                               QString::compare(head, u"macpro", Qt::CaseInsensitive) != 0))
            return *it;
    }
    return QStringLiteral("MacMini3,1");
}

QList<TempSensorEntry> namedSensorKeys(const QList<SensorDatModel>& file, const QString& macRawName,
                                       bool smcKeys, const QList<TempSensorEntry>& platform)
{
    NamedKeys named;
    if (smcKeys) {
        addFileNames(named, file, macRawName);
        for (const auto& table : builtInSmcSensorNames())
            for (const auto& [key, name] : table)
                named.add({QString::fromLatin1(key), QString::fromLatin1(name), {}, {}, {}});
    }
    for (const TempSensorEntry& sensor : platform) {
        if (TempSensorEntry* known = named.find(sensor.key)) {
            known->group = sensor.group;
            known->high = sensor.high;
            known->critical = sensor.critical;
        } else {
            named.add(sensor);
        }
    }
    return named.take();
}

QString capitalizedSensorName(const QString& name)
{
    QString result = name;
    for (qsizetype i = 0; i < result.size(); ++i)
        if (i == 0 || result[i - 1] == u' ')
            result[i] = result[i].toUpper();
    return result;
}

QList<TempSensorEntry> sensorList(const QList<TempSensorEntry>& named)
{
    QStringList names;
    for (const TempSensorEntry& entry : named)
        names.append(entry.name);
    std::stable_sort(names.begin(), names.end(), lessIgnoringCase);
    QList<TempSensorEntry> list;
    for (const QString& name : names) {
        const bool listed = std::any_of(list.begin(), list.end(), [&name](const TempSensorEntry& e) { return e.name == name; });
        if (listed)
            continue;
        TempSensorEntry entry =
            *std::find_if(named.begin(), named.end(), [&name](const TempSensorEntry& e) { return e.name == name; });
        entry.name = capitalizedSensorName(name);
        list.append(std::move(entry));
    }
    return list;
}
