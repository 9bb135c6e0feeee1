// The look-up reads a few files and runs on a click only; opening goes through QDesktopServices
// so the desktop's own choice of viewer applies.
#include "modules/vnc/vnc_screen_sharing.h"

#include "net/notifier.h"
#include "toolkit/desktop_exec.h"
#include "net/vnc_scheme_handler.h"
#include "toolkit/localization.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace TvlClasses {
namespace {

void tellNoViewer(Notifier* notifier, const QString& scheme, const QString& what)
{
    if (notifier == nullptr)
        return;
    const QString text =
        what.isEmpty()
            ? Tarvel::localized("No VNC viewer is registered for %1: addresses. Install one, such as Remmina "
                        "or TigerVNC.")
                  .arg(scheme)
            : Tarvel::localized("No VNC viewer is registered for %1: addresses, so %2 cannot be opened.").arg(scheme, what);
    notifier->fireNotification({Tarvel::localized("No VNC viewer"), text, {}, {}});
}

} // namespace

bool goScreenSharingApp(const QString& url, Notifier* notifier, const VncXdgDirs& dirs)
{
    const QUrl address(url);
    const QString scheme = address.scheme().isEmpty() ? QStringLiteral("vnc") : address.scheme().toLower();
    if (!VncSchemeHandler::find(dirs, QStringLiteral("x-scheme-handler/") + scheme)) {
        tellNoViewer(notifier, scheme, url);
        return false;
    }
    return QDesktopServices::openUrl(address);
}

bool openScreenSharing(Notifier* notifier, const VncXdgDirs& dirs)
{
    const auto viewer = VncSchemeHandler::find(dirs);
    const QStringList command = viewer ? DesktopExec::arguments(viewer->exec) : QStringList();
    if (command.isEmpty()) {
        tellNoViewer(notifier, QStringLiteral("vnc"), {});
        return false;
    }
    return QProcess::startDetached(command.first(), command.mid(1));
}

} // namespace TvlClasses
