// The settings store: flat keys with typed reads, where a missing key reads as NO, 0 or empty.
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVariantMap>

class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // The stored value; an invalid QVariant when the key was never written.
    virtual QVariant objectForKey(const QString& key) const = 0;
    virtual void setObject(const QString& key, const QVariant& value) = 0;
    virtual void removeObjectForKey(const QString& key) = 0;
    // Makes the written values durable; false when they could not be saved.
    virtual bool synchronize() = 0;
    // Every stored key and value, for diagnostics and tests.
    virtual QVariantMap dictionaryRepresentation() const = 0;
    // Where the settings are kept, to tell the user; empty for a store that is nowhere on disk.
    virtual QString location() const { return {}; }

    bool boolForKey(const QString& key) const;
    qint64 integerForKey(const QString& key) const;
    double doubleForKey(const QString& key) const;
    QString stringForKey(const QString& key) const;
    QVariantList arrayForKey(const QString& key) const;

    void setBool(const QString& key, bool value) { setObject(key, value); }
    void setInteger(const QString& key, qint64 value) { setObject(key, value); }
    void setDouble(const QString& key, double value) { setObject(key, value); }
    void setString(const QString& key, const QString& value) { setObject(key, value); }
    void setArray(const QString& key, const QVariantList& value) { setObject(key, value); }
};
