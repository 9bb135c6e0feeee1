// Property-list settings file: load, set aside when damaged, atomic writes, never anything else.
#include "prefs/plist_settings_store.h"

#include "toolkit/guarded_file.h"
#include "prefs/plist_io.h"
#include "toolkit/localization.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

PlistSettingsStore::PlistSettingsStore(QString path)
    : path_(std::move(path))
{
    load();
}

QString PlistSettingsStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/tarvel/settings.plist");
}

void PlistSettingsStore::load()
{
    const GuardedFile::Target target = GuardedFile::resolve(path_);
    writePath_ = target.path;
    if (target.kind == GuardedFile::Kind::Missing)
        return;
    if (target.kind == GuardedFile::Kind::Other) {
        // A directory, a device or a dangling link is the user's, whatever it holds.
        readOnly_ = true;
        openProblem_ = Tarvel::localized("The settings file %1 is not a regular file; the default "
                                 "settings are used and nothing is saved there.")
                           .arg(path_);
        return;
    }
    if (auto dict = PlistIo::readDictionary(writePath_)) {
        values_ = std::move(*dict);
        return;
    }
    if (const std::optional<QString> aside = GuardedFile::setAside(writePath_)) {
        openProblem_ = Tarvel::localized("The settings file %1 could not be read; it was moved to %2 "
                                 "and the default settings are used.")
                           .arg(path_, *aside);
        return;
    }
    readOnly_ = true;
    openProblem_ = Tarvel::localized("The settings file %1 could not be read nor moved aside; the "
                             "default settings are used and the file is left as it is.")
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
    if (readOnly_)
        return false;
    QDir().mkpath(QFileInfo(writePath_).absolutePath());
    if (!PlistIo::writeDictionaryAtomically(writePath_, values_)) {
        if (saveProblemReporter_ && !saveProblemReported_)
            saveProblemReporter_(Tarvel::localized("The settings could not be saved to %1.").arg(path_));
        saveProblemReported_ = true;
        return false;
    }
    dirty_ = false;
    saveProblemReported_ = false;
    return true;
}
