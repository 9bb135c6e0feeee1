// Decides where the status items are shown: the system tray, the bar window or the terminal.
#pragma once

enum class FrontEndKind { Tray, BarWindow, Terminal };

// Without a display only the terminal can show anything; the bar window is used when asked for
// or when no tray host is running, since tray icons would then never appear.
FrontEndKind chooseFrontEnd(bool barRequested, bool hasDisplay, bool trayAvailable);

// Whether the environment names an X11 or Wayland display (always true on macOS).
bool hasDisplay();
