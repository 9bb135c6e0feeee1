// The drop-downs and the preferences window drawn offscreen as a user would see them opened.
#pragma once

#include <QStringList>

#include <functional>

class AppDelegate;
class QString;

namespace RenderPanels {

// Opens every module's menu as a click would, lets waitForFigures run (the menus fill in while
// it does), writes each as <module>-dropdown.png and closes them. The names written are added
// to written; false if a file could not be written.
bool writeDropDowns(AppDelegate& delegate, const QString& dir, qreal scale, const std::function<void()>& waitForFigures,
                    QStringList& written);

// Opens the preferences window on the top tab and then the CPU tab, at the size it opens at on
// a roomy screen, and writes each as preferences-<module>.png.
bool writePreferences(AppDelegate& delegate, const QString& dir, qreal scale, QStringList& written);

} // namespace RenderPanels
