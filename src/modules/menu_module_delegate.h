// The application as a module's status item and menu reach it.
#pragma once

#include "collect/sensor_dat.h"

#include <QImage>
#include <QList>
#include <QVariantMap>

#include <functional>

class HistoryReader;
class LoadSystemInformation;
class Notifier;
class SettingsStore;

// Receives the requests a module's menu makes of the application, and lends it the collector
// and the settings store for what only an open menu shows.
class MenuModuleDelegate {
public:
    virtual ~MenuModuleDelegate() = default;
    virtual LoadSystemInformation& collector() = 0;
    virtual SettingsStore& settingsStore() = 0;
    // tabIndex: 0-based, in module registry order.
    virtual void openPreferenceTab(int tabIndex) = 0;
    // The sensor table worked out at start-up.
    virtual const SensorDatDict& sensorDatDict() const
    {
        static const SensorDatDict none;
        return none;
    }
    // Where messages to the user go; none where nothing can show them.
    virtual Notifier* notifier() { return nullptr; }
    // The colour theme in use, as stored in its file.
    virtual const QVariantMap& currentTheme() const = 0;
    // The pictures the status items show now, left to right.
    virtual QList<QImage> shownBarImages() const = 0;
    virtual void quitApplication() = 0;
    // Asks the project's site whether a newer version exists; the answer comes as a notification.
    virtual void checkForUpdates() {}
    // Opens the project's web site in the browser.
    virtual void visitWebSite() {}
    // Carries out the dynamic DNS list now, whatever the address; done gets a line saying how
    // it ended, on the main thread.
    virtual void forcedExecutionDdns(std::function<void(const QString& outcome)> done) { Q_UNUSED(done) }
    // The long-term history the graphs can show instead of the live samples; none where it is
    // not kept (snapshots, renders, tests).
    virtual HistoryReader* historyReader() { return nullptr; }
};
