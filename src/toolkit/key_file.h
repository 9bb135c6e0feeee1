// The "[group]" and "key=value" files of the freedesktop world: Remmina profiles, desktop entries
// and mimeapps.list.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QStringView>

class KeyFile {
public:
    // Comment lines (#) and lines outside any group are ignored; a repeated key keeps its first value.
    static KeyFile parse(QStringView text);
    // Reads the file; an empty key file when it cannot be read.
    static KeyFile read(const QString& path);

    bool hasGroup(const QString& group) const { return groups_.contains(group); }
    // The value with the escapes \s \n \t \r \\ resolved; empty when missing.
    QString value(const QString& group, const QString& key) const;
    // A ";"-separated value split into its non-empty entries ("\;" stays inside an entry).
    QStringList list(const QString& group, const QString& key) const;
    // A raw value with its escapes resolved.
    static QString unescaped(QStringView raw);
    // The group's keys, in no particular order.
    QStringList keys(const QString& group) const { return groups_.value(group).keys(); }

private:
    QHash<QString, QHash<QString, QString>> groups_; // raw values, escapes still in
};
