// Decides where the status items are shown: the system tray, the bar window or the terminal.
#include "app/front_ends/front_end_choice.h"

#include <QtGlobal>

FrontEndKind chooseFrontEnd(bool barRequested, bool hasDisplay, bool trayAvailable)
{
    if (!hasDisplay)
        return FrontEndKind::Terminal;
    if (barRequested || !trayAvailable)
        return FrontEndKind::BarWindow;
    return FrontEndKind::Tray;
}

bool hasDisplay()
{
#ifdef Q_OS_MACOS
    return true;
#else
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
#endif
}
