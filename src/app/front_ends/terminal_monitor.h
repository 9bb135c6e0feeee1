// The text view's lines: each shown module's figure as words, redrawn after every cycle.
#pragma once

#include "modules/status_bar.h"
#include "prefs/module_id.h"

#include <QObject>

#include <array>
#include <memory>
#include <vector>

class AppDelegate;

// Needs no status-item modules, and so none of their menus and pictures: the figures come from
// the sampled histories, as the modules' items would show them, so the text view runs without
// the widget toolkit or a font database.
class TerminalMonitor final : public QObject {
    Q_OBJECT
public:
    // The bar must outlive this object.
    TerminalMonitor(AppDelegate& delegate, StatusBar& bar, QObject* parent = nullptr);

    // The modules that have a line now, top to bottom.
    std::vector<ModuleId> shownModules() const { return shown_; }

private:
    void cycleFinished();
    // The modules that are switched on and speak in words, in the bar's order.
    std::vector<ModuleId> wantedModules() const;
    void rebuildItems(const std::vector<ModuleId>& wanted);

    AppDelegate& delegate_;
    StatusBar& bar_;
    std::vector<ModuleId> shown_;
    std::array<std::unique_ptr<StatusItem>, kModuleCount> items_;
};
