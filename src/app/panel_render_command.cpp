// tarvel render --panels: the pictures, then the drop-downs and preferences window as widgets.
#include "app/app_delegate.h"
#include "app/commands.h"
#include "app/front_ends/desktop_parts.h"
#include "app/render_command.h"
#include "app/render_panels.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

namespace {

// Long enough for the process scans and the like that open menus start in the background.
constexpr int kDetailsSettleMs = 400;

bool writePanels(AppDelegate& delegate, const AppOptions& options, QStringList& names)
{
    // One more cycle with every menu open, then a moment for what menus fetch on their own.
    const auto waitForFigures = [&delegate] {
        QEventLoop wait;
        QObject::connect(&delegate, &AppDelegate::cycleFinished, &wait, &QEventLoop::quit);
        wait.exec();
        QTimer::singleShot(kDetailsSettleMs, &wait, &QEventLoop::quit);
        wait.exec();
    };
    bool written = RenderPanels::writeDropDowns(delegate, options.outDir, options.scale, waitForFigures, names);
    return RenderPanels::writePreferences(delegate, options.outDir, options.scale, names) && written;
}

} // namespace

int runPanelRender(const AppOptions& options, int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return renderAfterCycles(options, {&attachDesktop, &writePanels});
}
