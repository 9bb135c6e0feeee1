// One screen-sharing host as the settings keep it: a display name, a vnc: URL, a menu flag.
#pragma once

#include <QList>
#include <QString>
#include <QVariantList>
#include <QVariantMap>

struct VncHost {
    QString name;
    QString url;
    bool menu = false; // shown in the normal menu
};

namespace VncHostRecords {

inline constexpr char kName[] = "name";
inline constexpr char kUrl[] = "url";
inline constexpr char kMenu[] = "menu";

// The stored form of an imported host: name and url only, so it stays out of the menu until
// the user marks it.
QVariantMap importedRecord(const VncHost& host);
// The stored list with the imported hosts after it, duplicates and all.
QVariantList appendImported(QVariantList stored, const QList<VncHost>& imported);

} // namespace VncHostRecords
