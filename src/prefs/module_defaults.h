// A module's working dictionary: its settings, resolved theme entries and derived layout values.
#pragma once

#include "prefs/module_id.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QMetaType>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantHash>

#include <array>

// A theme picture with the size, in points, it is drawn at.
struct ThemePicture {
    QImage image;
    QSizeF size;
};
Q_DECLARE_METATYPE(ThemePicture)

// Copies share their data (copy-on-write), so a snapshot handed to another thread stays stable.
// Every read of a missing key answers NO, 0 or empty; drawing code never needs to check.
class ModuleDefaults {
public:
    bool contains(const QString& key) const { return values_.contains(key); }
    QVariant value(const QString& key) const { return values_.value(key); }
    void set(const QString& key, const QVariant& value) { values_.insert(key, value); }
    void remove(const QString& key) { values_.remove(key); }
    void clear() { values_.clear(); }
    bool isEmpty() const { return values_.isEmpty(); }
    const QVariantHash& values() const { return values_; }
    // A cheap identity test: true for copies of one dictionary that neither has changed since.
    bool sharesDataWith(const ModuleDefaults& other) const { return values_.isSharedWith(other.values_); }

    bool boolValue(const QString& key) const;
    qint64 intValue(const QString& key) const;
    double doubleValue(const QString& key) const;
    QString stringValue(const QString& key) const;
    QVariantList listValue(const QString& key) const;
    QList<qint64> intList(const QString& key) const;
    QStringList stringList(const QString& key) const;
    // The clear colour when the key holds no colour.
    QColor color(const QString& key) const;
    ThemePicture picture(const QString& key) const;

private:
    QVariantHash values_;
};

// Every module's working dictionary, in module table order.
using AllModuleDefaults = std::array<ModuleDefaults, kModuleCount>;
