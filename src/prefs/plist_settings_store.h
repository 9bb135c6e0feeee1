// Settings kept in one property-list file, written atomically on synchronize.
#pragma once

#include "prefs/settings_store.h"

#include <QString>
#include <QVariantMap>

// Used from the main thread only. A file that cannot be read as a property-list dictionary is
// moved aside (never deleted) and the store starts empty, so first-run defaults apply.
class PlistSettingsStore final : public SettingsStore {
public:
    explicit PlistSettingsStore(QString path);

    // The per-user default file: the configuration folder's tarvel/settings.plist.
    static QString defaultPath();

    QVariant objectForKey(const QString& key) const override;
    void setObject(const QString& key, const QVariant& value) override;
    void removeObjectForKey(const QString& key) override;
    bool synchronize() override;
    QVariantMap dictionaryRepresentation() const override { return values_; }
    QString location() const override { return path_; }

    const QString& path() const { return path_; }
    // What went wrong while opening the file (and where the bad file went); empty when fine.
    const QString& openProblem() const { return openProblem_; }

private:
    void load();

    QString path_;
    QVariantMap values_;
    QString openProblem_;
    bool dirty_ = false;
};
