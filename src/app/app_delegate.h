// The application controller: owns the settings, the collector, the shared data and the cycle.
#pragma once

#include "alerts/alert_monitor.h"
#include "app/preferences_host.h"
#include "app/sampling_schedule.h"
#include "collect/info_dict.h"
#include "collect/load_system_information.h"
#include "export/export_extras.h"
#include "modules/menu_module_delegate.h"
#include "modules/module_item.h"
#include "prefs/module_defaults.h"
#include "prefs/module_id.h"
#include "prefs/pref_notification.h"
#include "prefs/settings_store.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>

#include <array>
#include <deque>
#include <functional>
#include <memory>

class AppearanceWatcher;
class CycleExecutor;
class HistoryReader;
struct CycleOutput;
class VolumeTracker;

class DesktopNotifier;

class AppDelegate : public QObject, public MenuModuleDelegate {
    Q_OBJECT
public:
    AppDelegate(std::unique_ptr<SettingsStore> store, SourceSet sources, QObject* parent = nullptr);
    ~AppDelegate() override;

    // Replaces the thread pool, for tests that drive the cycle by hand. Call before launching.
    void setCycleExecutor(std::unique_ptr<CycleExecutor> executor);

    // Where status items go, and what makes them; without a bar (snapshot, text view) no item is
    // created. Call before launching; the bar must outlive this controller.
    void setStatusBar(StatusBar* bar, ModuleItemFactory createItem);
    // Where messages go when no status bar is set: the text view, whose lines are not modules.
    void setMessageBar(StatusBar* bar) { messageBar_ = bar; }
    // The preferences window, where one can be shown (not where only text lines are).
    void setPreferencesHost(std::unique_ptr<PreferencesHost> host) { preferencesHost_ = std::move(host); }
    PreferencesHost* preferencesHost() const { return preferencesHost_.get(); }
    // Commands that draw and leave never show the window "Display preferences at startup" asks for.
    void setStartupWindowAllowed(bool allowed) { startupWindowAllowed_ = allowed; }
    // Whether each cycle also gathers the figures only the metrics export serves.
    void setExportWanted(bool wanted) { exportWanted_ = wanted; }
    // Those figures as of the last finished cycle; none while nobody wants them.
    const std::optional<ExportExtras>& exportExtras() const { return exportExtras_; }
    // Device pixels per point of the modules' pictures; 0 follows the screen.
    void setPictureScale(qreal scale) { pictureScale_ = scale; }

    // Called on the cycle's thread after each collection (the long-term history takes its
    // figures there). Set before launching.
    void setCycleObserver(std::function<void(LoadSystemInformation&, const CycleOutput&)> observer)
    {
        cycleObserver_ = std::move(observer);
    }
    // What the menus read the long-term history through; none keeps the graphs live only.
    void setHistoryReader(HistoryReader* reader) { historyReader_ = reader; }
    HistoryReader* historyReader() override { return historyReader_; }

    // Replaces the restart itself, for tests of the restart schedule.
    void setRebootAction(std::function<void()> action) { rebootAction_ = std::move(action); }

    // The launch sequence. With startTimer false no repeating timer is made (tests, snapshot
    // with its own pacing); the first cycle still starts at once.
    void applicationDidFinishLaunching(bool startTimer = true);

    // One tick: starts a cycle unless one is running; a dropped tick is never queued.
    void loadSysInfoTimer();

    void reloadGeneralDefaults(bool skip);

    // Module operations: create when absent, hand over settings and history and redraw, release.
    void moduleAlloc(ModuleId id);
    void reDrawModule(ModuleId id, bool full);
    void moduleRelease(ModuleId id);
    void allModulesDisable();
    // Builds the status items from the settings: General first, then the bar order reversed.
    void checkDrawMenu();
    void moduleLaunchCheck(bool disableFirst);
    ModuleItem* moduleItem(ModuleId id) const { return modules_[moduleIndex(id)].get(); }

    LoadSystemInformation& collector() override { return *loadInfo_; }
    SettingsStore& settingsStore() override { return *userDefaults_; }
    void openPreferenceTab(int tabIndex) override;
    const QVariantMap& currentTheme() const override { return themeColorDict_; }
    const SensorDatDict& sensorDatDict() const override { return *sensorDatDict_; }
    Notifier* notifier() override;
    QList<QImage> shownBarImages() const override;
    void quitApplication() override;
    bool chkGeneBool(const QString& key) const { return generalDefaults().boolValue(key); }
    qint64 chkGeneInteger(const QString& key) const { return generalDefaults().intValue(key); }

    // The preferences window showed another tab (0-based).
    void preferenceTabSelected(int index);
    PrefNotificationCenter& prefNotificationCenter() { return *prefCenter_; }
    // Every module's working dictionary, in module table order.
    AllModuleDefaults retAllMyDefault() const { return moduleDefaults_; }
    // Redraws the picture of every module that is switched on (a tab was chosen, the window closed).
    void refreshAllMenuModules();

    // A tab changed a setting: handled 0.25 s later, after any running cycle, in arrival order.
    void notifFromPref(const PrefNotification& notification);
    void processNotifFromPref(const PrefNotification& notification);
    // Writes the in-memory theme and makes every module take its colours again.
    void writeToColorThemeFile();
    // Selects the theme's alternative when the desktop's appearance no longer matches it.
    void changeAppearanceMode(bool desktopIsDark);

    void checkDdns(bool forced);
    void forcedExecutionDdns(std::function<void(const QString& outcome)> done = {}) override;
    // A dynamic DNS run ended; the forced run's asker hears how.
    void ddnsRunFinished(const QString& outcome);
    void checkForUpdates() override;
    void visitWebSite() override;

    void rebootMeSetting();
    void rebootMe();

    SettingsStore& userDefaults() { return *userDefaults_; }
    const ModuleDefaults& defaults(ModuleId id) const { return moduleDefaults_[moduleIndex(id)]; }
    const ModuleDefaults& generalDefaults() const { return defaults(ModuleId::General); }
    const InfoDict& infoDict() const { return infoDict_; }
    const QVariantMap& themeColorDict() const { return themeColorDict_; }
    const LoadSystemInformation& loadInfo() const { return *loadInfo_; }
    // The volume and disk descriptions, with their signal for the Disk and Volume modules.
    VolumeTracker& volumeTracker() const { return *volumeTracker_; }
    // Hands the descriptions to the module when it is on and draws from them: an open menu is
    // closed, since its rows no longer match, and with reset the picture is drawn again.
    void moduleStorageRefresh(ModuleId id, bool reset);
    // Rebuilds the descriptions (unless Disk and Volume are both off) and hands them to both.
    void moduleDskVolRefresh();
    // The cadence of every module; intervals follow the settings as they are loaded.
    const SamplingSchedule& schedule() const { return schedule_; }
    SamplingSchedule& schedule() { return schedule_; }
    // The alert rules in use, read again from the store after every preference change.
    AlertMonitor& alertMonitor() { return alerts_; }
    bool isDebugMode() const { return isDebugMode_; }
    bool cycleRunning() const { return loadSysInfoTimerFinishedBool; }
    quint32 globalIpCheckCount() const { return chkNowGlobalIpAddrCount; }
    bool rebootTimerActive() const { return rebootTimer_ != nullptr; }
    qint64 rebootDaysTimerCount() const { return rebootDaysTimerInt; }

Q_SIGNALS:
    // A module's redraw was asked for (full: rebuild, else the cycle's light redraw).
    void moduleRedrawRequested(ModuleId id, bool full);
    // Every 600th cycle, or forced: the global address is to be looked up for dynamic DNS.
    void ddnsLookupRequested(bool forced);
    // The redraw step of a cycle has run.
    void cycleFinished();
    // The current theme was written to its file.
    void themeFileWritten();
    // Every module took its settings again (after a theme write or a theme choice).
    void allModulesReloaded();

private:
    // What a notification's button asks for: the download page for a new version.
    void notificationActionInvoked(const QString& tag, const QString& action);
    // The launch's first steps on the store: the Shift reset, first-run values, the version.
    void prepareSettingsStore();
    // The sensor table: every sensor named, less those that do not answer, and the fan list.
    void loadSensorDatDict();
    // The current theme, repaired; a damaged or foreign theme file is reported, never lost.
    void loadThemeColorDict();
    // Takes a module's reloaded settings; its interval reaches the schedule at once.
    void setModuleDefaults(ModuleId id, ModuleDefaults defaults);
    void reloadModuleDefaults(ModuleId id);
    bool menuOpened(ModuleId id) const;
    bool switchedOn(ModuleId id) const;
    void redrawStep(const CycleOutput& output);
    void reloadAlertRules();
    // Evaluates the alert rules on the histories the cycle has just produced.
    void checkAlerts();
    // Whether the cycle is to collect swap usage beside the Memory sample.
    bool swapWanted() const;
    // Tells every status item whether one of its module's rules is firing.
    void markAlertingModules();
    void drainPrefNotifications();
    void processFontOrColor(const QVariantMap& info, bool& skipRest);
    void processModuleNotif(ModuleId id, const QVariantMap& info, bool removeFirst, bool refreshItems);
    void handOutTabDefaults(bool themeChanged);
    // After a mount, an unmount or a rename.
    void storageDescriptionsChanged();
    // The Volume history carries renamed volumes under their new names.
    void applyVolumeRenames();
    // The descriptions, as rebuilt, to the modules and the previews that draw from them.
    void handOutStorageDescriptions();
    void writeNowThemeFile();
    // The theme in use from now on; the status bar takes its appearance.
    void takeTheme(QVariantMap theme);

    std::unique_ptr<SettingsStore> userDefaults_;
    bool isDebugMode_ = false;
    bool loadSysInfoTimerFinishedBool = false;
    std::unique_ptr<LoadSystemInformation> loadInfo_;
    quint32 chkNowGlobalIpAddrCount = 1;
    QVariantMap themeColorDict_;
    bool changeColorPool = false;
    bool changeRebootPool = false;
    qint64 openedTabNum = 1;
    qint64 swapfilesLimitCheckCounter = 0;
    QPointer<QTimer> rebootTimer_;
    qint64 rebootDaysInt = 0;
    qint64 rebootDaysTimerInt = 0;
    std::array<ModuleDefaults, kModuleCount> moduleDefaults_;
    std::array<std::unique_ptr<ModuleItem>, kModuleCount> modules_;
    ModuleItemFactory createItem_ = nullptr;
    SamplingSchedule schedule_;
    StatusBar* statusBar_ = nullptr;
    StatusBar* messageBar_ = nullptr;
    DesktopNotifier* notifier_ = nullptr; // a child, made when first needed
    AlertMonitor alerts_{[this] { return notifier(); }};
    // Told how the forced dynamic DNS run asked for in the preferences ended.
    std::function<void(const QString& outcome)> ddnsOutcome_;
    qreal pictureScale_ = 0;
    InfoDict infoDict_;
    // Built once at start-up; the cycle shares it, so it is never changed afterwards.
    std::shared_ptr<const SensorDatDict> sensorDatDict_ = std::make_shared<const SensorDatDict>();
    // Declared after the settings it reads, so it goes before them and before the collector.
    std::unique_ptr<VolumeTracker> volumeTracker_;
    QTimer* sysInfoTimer_ = nullptr;
    std::unique_ptr<PreferencesHost> preferencesHost_;
    AppearanceWatcher* appearanceWatcher_ = nullptr;
    std::deque<PrefNotification> pendingPrefs_;
    bool prefRetryScheduled_ = false;
    bool startupWindowShown_ = false;
    bool startupWindowAllowed_ = true;
    bool exportWanted_ = false;
    std::optional<ExportExtras> exportExtras_;
    std::function<void()> rebootAction_;
    std::function<void(LoadSystemInformation&, const CycleOutput&)> cycleObserver_;
    HistoryReader* historyReader_ = nullptr;
    PrefNotificationCenter* prefCenter_;
    // Last member: destroyed first, so a running cycle ends before the collector goes away.
    std::unique_ptr<CycleExecutor> executor_;
};
