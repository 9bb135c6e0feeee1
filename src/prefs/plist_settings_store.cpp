// Property-list settings file: load, set aside when damaged, atomic writes.
#include "prefs/plist_settings_store.h"

#include "prefs/plist_io.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

PlistSettingsStore::PlistSettingsStore(QString path) : path_(std::move(path))
{
    load();
}

QString PlistSettingsStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/tarvel/settings.plist");
}

void PlistSettingsStore::load()
{
    if (!QFileInfo::exists(path_))
        return;
    if (auto dict = PlistIo::readDictionary(path_)) {
        values_ = std::move(*dict);
        return;
    }
    const QString aside = path_ + QStringLiteral(".unreadable-")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    if (QFile::rename(path_, aside))
        openProblem_ = QStringLiteral("The settings file %1 could not be read; it was moved to %2 "
                                      "and the default settings are used.")
                           .arg(path_, aside);
    else
        openProblem_ = QStringLiteral("The settings file %1 could not be read and could not be moved "
                                      "aside; the default settings are used and it will be replaced.")
                           .arg(path_);
}

QVariant PlistSettingsStore::objectForKey(const QString& key) const
{
    return values_.value(key);
}

void PlistSettingsStore::setObject(const QString& key, const QVariant& value)
{
    if (!value.isValid()) {
        removeObjectForKey(key);
        return;
    }
    values_.insert(key, value);
    dirty_ = true;
}

void PlistSettingsStore::removeObjectForKey(const QString& key)
{
    if (values_.remove(key) > 0)
        dirty_ = true;
}

bool PlistSettingsStore::synchronize()
{
    if (!dirty_)
        return true;
    QDir().mkpath(QFileInfo(path_).absolutePath());
    if (!PlistIo::writeDictionaryAtomically(path_, values_))
        return false;
    dirty_ = false;
    return true;
}
