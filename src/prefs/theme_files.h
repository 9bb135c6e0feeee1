// The support folder and its theme files: installing the reference themes, saving named copies.
#pragma once

#include <QString>
#include <QVariantMap>

namespace TvlClasses {

// The per-user data folder plus "Tarvel6" (Application Support on macOS, XDG data home elsewhere).
QString retApplicationSupportDir();

// Creates the support folder when it is missing.
void checkMyApplicationSupportDir();

// The path of a file in the support folder.
QString retThemeFilePath(const QString& fileName);

// The bundled copy of a reference theme ("_light_theme" or "_dark_theme").
QString retBundleThemePath(const QString& themeName);

// Replaces to by a writable copy of from; false when from could not be copied.
bool replaceThemeFile(const QString& from, const QString& to);

// Refreshes the reference themes in the support folder, creates the current theme from the
// light one when there is none, and returns the current theme. A damaged current theme is moved
// aside and replaced by the light one; one that is not a regular file is left alone and the light
// theme is returned. Either is described in problem.
QVariantMap checkNowThemeFile(QString* problem = nullptr);

// Writes a copy of the theme, named after the file and with any PNG overrides of the support
// folder, atomically to path. False when it could not be written.
bool saveThemeFile(const QString& path, const QVariantMap& theme);

// When the support folder holds a non-empty "<key>.png", its bytes become the key's entry.
QVariantMap& retDataFromImageFile(const QString& key, QVariantMap& theme);

} // namespace TvlClasses
