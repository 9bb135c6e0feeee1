// Whether a newer version of the program is published, told to the user as a notification.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class Notifier;
class SettingsStore;

namespace TvlClasses {

// Action identifiers of the new-version notice; "download" opens UpdateSettings::downloadPageUrl.
inline constexpr char kDownloadAction[] = "download";
inline constexpr char kCancelAction[] = "cancel";

// Called once, on the calling thread: 1 when a newer version was announced, else 0.
using UpdateCheckDone = std::function<void(int found)>;

// Fetches the version file without blocking the calling thread and tells the user the outcome in
// every case: the new-version notice, "No update available" (also when the file cannot be had),
// or that no address is set. store and notifier must outlive the check.
void updateCheck(SettingsStore& store, Notifier& notifier, const QString& ownVersion, UpdateCheckDone done = {});

// The published version as "major.minor.patch" when the six-digit version file names one newer
// than ownVersion (dotted, missing parts 0); empty otherwise.
QString updateCheckDetail(const QByteArray& data, const QString& ownVersion);

// Records that a notice was shown and announces newVersion, with Download and Cancel; returns 1.
int existsUpdateAlert(SettingsStore& store, Notifier& notifier, const QString& ownVersion, const QString& newVersion);
void noUpdateAlert(Notifier& notifier);

} // namespace TvlClasses
