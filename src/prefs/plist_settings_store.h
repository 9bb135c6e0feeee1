// Settings kept in one property-list file, written atomically on synchronize.
#pragma once

#include "prefs/settings_store.h"

#include <QString>
#include <QVariantMap>

#include <functional>

// Used from the main thread only. A regular file that cannot be read as a property-list
// dictionary is moved aside (never deleted) and the store starts empty, so first-run defaults
// apply. Anything else at the path (a directory, a device, a link to nothing) and a damaged file
// that cannot be moved are left untouched: the store then runs on defaults and saves nothing.
// A linked file stays a link: its target is read and replaced.
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
    // True when nothing will be written (see above).
    bool isReadOnly() const { return readOnly_; }
    // Told once when a save fails, again only after a save has succeeded in between.
    void setSaveProblemReporter(std::function<void(const QString&)> report)
    {
        saveProblemReporter_ = std::move(report);
    }

private:
    void load();

    QString path_;
    QString writePath_;
    QVariantMap values_;
    QString openProblem_;
    std::function<void(const QString&)> saveProblemReporter_;
    bool dirty_ = false;
    bool readOnly_ = false;
    bool saveProblemReported_ = false;
};
