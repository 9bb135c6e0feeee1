// The theme menu: the themes of the support folder, their detail text, and selecting one.
#pragma once

#include <QString>
#include <QVariantList>
#include <QVariantMap>

namespace TvlClasses {

// One map per theme with _FileName, _Name ("_Untitled_" when unknown), _Author, _Credit and
// _ForDarkAppearance. The current theme comes first; other files are listed when their name is
// longer than ".plist", does not begin with "." and has the extension "plist".
QVariantList retThemeList();

// The detail text of a list entry: name, author, credit and the appearance it is made for.
QString retThemeDetailText(const QVariantMap& entry);

// Makes the support folder's file the current theme. Selecting the current theme itself, or a
// file that is not there, leaves the current theme alone.
bool selectThemeFile(const QString& fileName);

} // namespace TvlClasses
