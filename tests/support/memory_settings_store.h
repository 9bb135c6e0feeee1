// A settings store in memory for tests, which can be told to fail its saves.
#pragma once

#include "prefs/settings_store.h"

#include <QVariantMap>

class MemorySettingsStore : public SettingsStore {
public:
    QVariantMap values;
    bool failSaves = false;
    int saves = 0;

    QVariant objectForKey(const QString& key) const override { return values.value(key); }
    void setObject(const QString& key, const QVariant& value) override { values.insert(key, value); }
    void removeObjectForKey(const QString& key) override { values.remove(key); }
    bool synchronize() override
    {
        ++saves;
        return !failSaves;
    }
    QVariantMap dictionaryRepresentation() const override { return values; }
};
