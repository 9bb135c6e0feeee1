// The render's cycles and pictures, shared by the plain render and the one with the drop-downs.
#pragma once

#include "app/app_options.h"

#include <QStringList>

class AppDelegate;
class StatusBar;

struct RenderSteps {
    // Gives the controller its status items (and whatever else the render draws).
    void (*attach)(AppDelegate& delegate, StatusBar* bar);
    // Writes what comes after the pictures, adding the names written; false if one failed. Null
    // for nothing more.
    bool (*writeMore)(AppDelegate& delegate, const AppOptions& options, QStringList& names) = nullptr;
};

// Runs the cycles the options ask for under the application object the caller made, writes every
// status item's picture and its menu's graph, then the steps' more, and lists the files on
// standard output.
int renderAfterCycles(const AppOptions& options, const RenderSteps& steps);
