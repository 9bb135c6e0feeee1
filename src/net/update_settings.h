// Where the update check looks and where its notice leads, with the project's own addresses.
#pragma once

#include <QString>

class SettingsStore;

namespace UpdateSettings {

inline constexpr char kDefaultVersionFileUrl[] = "https://tarvel.github.io/ver6.dat";
inline constexpr char kDefaultDownloadPageUrl[] = "https://tarvel.github.io/download/";

// The stored address, or the default while the key is absent; empty when the user cleared it.
QString versionFileUrl(const SettingsStore& store);
QString downloadPageUrl(const SettingsStore& store);

} // namespace UpdateSettings
