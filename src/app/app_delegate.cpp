// Launch sequence, sampling cycle driver, dynamic DNS trigger and the regular restart.
#include "app/app_delegate.h"

#include "app/app_logging.h"
#include "app/appearance_watcher.h"
#include "app/cycle_executor.h"
#include "app/desktop_notifier.h"
#include "app/general_functions_reboot.h"
#include "app/machine_identity.h"
#include "app/sampling_cycle.h"
#include "app/volume_tracker.h"
#include "modules/module_prefs.h"
#include "modules/module_registry.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_appearance.h"
#include "prefs/theme_files.h"
#include "prefs/theme_repair.h"
#include "toolkit/localization.h"

#include <QGuiApplication>
#include <QTimer>

namespace {

// Ten minutes a tick; 144 ticks make a day.
constexpr int kRebootTickMs = 600 * 1000;
constexpr qint64 kRebootTicksPerDay = 144;
constexpr int kStartupWindowDelayMs = 1000;

} // namespace

AppDelegate::AppDelegate(std::unique_ptr<SettingsStore> store, SourceSet sources, QObject* parent)
    : QObject(parent)
    , userDefaults_(std::move(store))
    , loadInfo_(std::make_unique<LoadSystemInformation>(std::move(sources)))
    , volumeTracker_(std::make_unique<VolumeTracker>(*loadInfo_, defaults(ModuleId::General)))
    , rebootAction_(&GeneralFunctions::rebootMe)
    , prefCenter_(new PrefNotificationCenter(this))
    , executor_(std::make_unique<ThreadPoolCycleExecutor>(this))
{
    connect(prefCenter_, &PrefNotificationCenter::posted, this, &AppDelegate::notifFromPref);
    connect(volumeTracker_.get(), &VolumeTracker::descriptionsChanged, this, &AppDelegate::storageDescriptionsChanged);
}

AppDelegate::~AppDelegate()
{
    // Wait for a running cycle before the collector and the dictionaries go away.
    executor_.reset();
    preferencesHost_.reset();
}

void AppDelegate::setStatusBar(StatusBar* bar, ModuleItemFactory createItem)
{
    statusBar_ = bar;
    createItem_ = createItem;
    if (notifier_ != nullptr)
        notifier_->setFallback(bar);
}

void AppDelegate::takeTheme(QVariantMap theme)
{
    themeColorDict_ = std::move(theme);
    if (statusBar_ != nullptr)
        statusBar_->setDarkAppearance(TvlClasses::isDarkTheme(themeColorDict_));
}

void AppDelegate::setCycleExecutor(std::unique_ptr<CycleExecutor> executor)
{
    executor_ = std::move(executor);
}

void AppDelegate::prepareSettingsStore()
{
    SettingsStore& store = *userDefaults_;

    // Shift held at launch makes the machine identification and sensor choice be redone.
    const auto modifiers = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr
                               ? QGuiApplication::queryKeyboardModifiers()
                               : Qt::NoModifier;
    isDebugMode_ = modifiers != Qt::NoModifier && modifiers.testFlag(Qt::ShiftModifier);
    if (isDebugMode_) {
        for (const char* key : {PrefKey::MacRawName, PrefKey::MacRealName, PrefKey::MacImage, PrefKey::RemovedTempKeys})
            store.removeObjectForKey(key);
        store.synchronize();
    }
    // (The translucent preferences background exists on macOS only.)

    store.setBool(PrefKey::UpdateAlerting, false);
    store.synchronize();
    if (store.stringForKey(PrefKey::AppVersion).isEmpty()) {
        for (const ModuleSchema* schema : allModuleSchemas())
            PrefFunctions::initializeModulePreference(*schema, store);
    }
    // The menu-bar order is kept across launches here; only one older desktop resets it.
    store.setString(PrefKey::AppVersion, QStringLiteral(TARVEL_VERSION));
    store.synchronize();
    if (store.boolForKey(PrefKey::DisplayTopWindowAtStartupTmp)) {
        store.removeObjectForKey(PrefKey::DisplayTopWindowAtStartupTmp);
        store.setBool(PrefKey::DisplayTopWindowAtStartup, true);
        store.synchronize();
    }
    // (The file manager's path-in-title default is a macOS setting.)
}

void AppDelegate::applicationDidFinishLaunching(bool startTimer)
{
    SettingsStore& store = *userDefaults_;
    loadSysInfoTimerFinishedBool = false;
    changeColorPool = false;
    changeRebootPool = false;
    swapfilesLimitCheckCounter = 0;
    openedTabNum = 1;
    chkNowGlobalIpAddrCount = 1;
    prepareSettingsStore();

    TvlClasses::checkMyApplicationSupportDir();
    if (MachineSource* machine = loadInfo_->sources().machine.get())
        collectMyMacDetail(store, machineFacts(*machine));
    loadSensorDatDict();
    loadThemeColorDict();
    reloadGeneralDefaults(false);
    for (const ModuleSchema* schema : allModuleSchemas()) {
        if (schema->id != ModuleId::General)
            reloadModuleDefaults(schema->id);
    }
    reloadAlertRules();

    // The preferences window is built when it is first opened: most of the time it is closed,
    // and its widgets and the font list would only take memory.
    checkDrawMenu();
    volumeTracker_->startWatching();
    if (statusBar_ != nullptr && preferencesHost_ != nullptr &&
        qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr) {
        appearanceWatcher_ = new AppearanceWatcher(this);
        connect(appearanceWatcher_, &AppearanceWatcher::appearanceChanged, this, &AppDelegate::changeAppearanceMode);
        changeAppearanceMode(appearanceWatcher_->isDark());
    }

    loadSysInfoTimer();
    if (startTimer) {
        sysInfoTimer_ = new QTimer(this);
        sysInfoTimer_->setInterval(1000);
        connect(sysInfoTimer_, &QTimer::timeout, this, &AppDelegate::loadSysInfoTimer);
        sysInfoTimer_->start();
    }

    rebootDaysInt = chkGeneInteger(PrefKey::kRebootRegularlyDays);
    rebootMeSetting();
}

void AppDelegate::loadSensorDatDict()
{
    SettingsStore& store = *userDefaults_;
    SensorDatDict table = loadInfo_->getSensorDatXml(store.stringForKey(PrefKey::MacRawName));
    if (table.tempData) {
        const QStringList removed = QVariant(store.arrayForKey(PrefKey::RemovedTempKeys)).toStringList();
        TempDetail detail = loadInfo_->getDetailTemp(table, removed);
        if (detail.removedTempKeys.isEmpty())
            store.removeObjectForKey(PrefKey::RemovedTempKeys);
        else
            store.setArray(PrefKey::RemovedTempKeys,
                           QVariantList(detail.removedTempKeys.cbegin(), detail.removedTempKeys.cend()));
        store.synchronize();
        if (!detail.entries.isEmpty())
            table.tempData = std::move(detail.entries);
    }
    if (QList<FanEntry> fans = loadInfo_->getFanBase(); !fans.isEmpty())
        table.fanData = std::move(fans);
    sensorDatDict_ = std::make_shared<const SensorDatDict>(std::move(table));
}

void AppDelegate::reloadGeneralDefaults(bool skip)
{
    if (skip)
        return;
    reloadModuleDefaults(ModuleId::General);
}

void AppDelegate::setModuleDefaults(ModuleId id, ModuleDefaults defaults)
{
    moduleDefaults_[moduleIndex(id)] = std::move(defaults);
    if (const char* key = moduleSchema(id).intervalKey)
        schedule_.setInterval(id, this->defaults(id).intValue(key));
}

void AppDelegate::reloadModuleDefaults(ModuleId id)
{
    setModuleDefaults(id, PrefFunctions::loadModuleDefaults(id, *userDefaults_, themeColorDict_));
}

bool AppDelegate::menuOpened(ModuleId id) const
{
    const ModuleItem* module = moduleItem(id);
    return module != nullptr && module->menuOpened();
}

bool AppDelegate::switchedOn(ModuleId id) const
{
    return id == ModuleId::General || chkGeneBool(moduleSchema(id).switchKey);
}

void AppDelegate::moduleAlloc(ModuleId id)
{
    auto& slot = modules_[moduleIndex(id)];
    if (slot || statusBar_ == nullptr || createItem_ == nullptr)
        return;
    slot = createItem_(id, this);
    if (!slot)
        return;
    slot->setMyDefaults(defaults(id));
    moduleStorageRefresh(id, true);
    slot->setPictureScale(pictureScale_);
    slot->initDrawStatusBar(*statusBar_);
    if (id != ModuleId::General)
        reDrawModule(id, false);
}

void AppDelegate::reDrawModule(ModuleId id, bool full)
{
    ModuleItem* module = moduleItem(id);
    if (!switchedOn(id))
        return;
    Q_EMIT moduleRedrawRequested(id, full);
    if (module == nullptr)
        return;
    module->setMyDefaults(defaults(id));
    module->setHistory(infoDict_);
    if (full)
        module->refreshBar();
    else
        module->cycleStatusMenu();
}

void AppDelegate::moduleRelease(ModuleId id)
{
    // Only the in-memory switch: the stored setting stays as the user left it.
    if (id != ModuleId::General)
        moduleDefaults_[moduleIndex(ModuleId::General)].set(moduleSchema(id).switchKey, false);
    auto& slot = modules_[moduleIndex(id)];
    if (const auto released = moduleDescriptor(id).released; released != nullptr && slot)
        released(*loadInfo_);
    slot.reset();
}

void AppDelegate::allModulesDisable()
{
    for (const ModuleSchema* schema : allModuleSchemas())
        moduleRelease(schema->id);
}

void AppDelegate::checkDrawMenu()
{
    // No cycle may start while status items are being built.
    loadSysInfoTimerFinishedBool = true;
    if (chkGeneBool(PrefKey::DisplayMyMenuIcon))
        moduleAlloc(ModuleId::General);
    else
        moduleRelease(ModuleId::General);
    if (volumeTracker_->collectDskVolDetail())
        handOutStorageDescriptions();
    // Each new item goes to the left of the others, so walking the order backwards lays the bar
    // out in the user's order.
    const QVariantList order = generalDefaults().listValue(PrefKey::TopItemSortArray);
    for (auto it = order.crbegin(); it != order.crend(); ++it) {
        const auto id = moduleForSortCode(it->toLongLong());
        if (!id)
            continue;
        if (switchedOn(*id))
            moduleAlloc(*id);
        else
            moduleRelease(*id);
    }
    // Shown once at start; later rebuilds only bring an open window to the front again.
    if (chkGeneBool(PrefKey::DisplayTopWindowAtStartup) && statusBar_ != nullptr && startupWindowAllowed_ &&
        (!startupWindowShown_ || (preferencesHost_ != nullptr && preferencesHost_->isVisible()))) {
        startupWindowShown_ = true;
        QTimer::singleShot(kStartupWindowDelayMs, this,
                           [this] { openPreferenceTab(static_cast<int>(openedTabNum) - 1); });
    }
    loadSysInfoTimerFinishedBool = false;
}

void AppDelegate::moduleLaunchCheck(bool disableFirst)
{
    reloadGeneralDefaults(true);
    if (disableFirst)
        allModulesDisable();
    // After the disable: every release wrote NO into the in-memory switches.
    reloadModuleDefaults(ModuleId::General);
    checkDrawMenu();
}

void AppDelegate::quitApplication()
{
    QCoreApplication::quit();
}

void AppDelegate::loadSysInfoTimer()
{
    if (loadSysInfoTimerFinishedBool) {
        schedule_.tickDropped();
        return;
    }
    loadSysInfoTimerFinishedBool = true;

    // The cadence is decided here, on the main thread that owns it, so that a reset made while
    // the body runs (a mount) holds for the next cycle.
    std::array<ModuleCadence, kModuleCount> cadence{};
    CycleInput input;
    for (std::size_t i = 0; i < moduleRegistry().size(); ++i) {
        const ModuleDescriptor& module = *moduleRegistry()[i];
        const ModuleId id = module.schema.id;
        cadence[i] = {module.sample != nullptr, switchedOn(id), menuOpened(id),
                      module.firstSampleAtOnce && !infoDict_.exists(i)};
        input.menuOpened[i] = cadence[i].menuOpened;
    }
    input.due = schedule_.decide(cadence);
    for (std::size_t i = 0; i < moduleRegistry().size(); ++i)
        input.seconds[i] = schedule_.secondsCovered(moduleRegistry()[i]->schema.id);
    input.info = infoDict_;
    input.volumeBase = volumeTracker_->sharedVolumeBaseDict();
    input.sensors = sensorDatDict_;
    input.exportWanted = exportWanted_;
    input.swapWanted = swapWanted();
    // The body holds the executor itself, not the member: while the controller is destroyed the
    // member is already empty as the executor waits for this body to finish.
    CycleExecutor* executor = executor_.get();
    executor->runInBackground([this, executor, input = std::move(input)]() mutable {
        CycleOutput output = SamplingCycle::runBody(*loadInfo_, std::move(input));
        if (cycleObserver_)
            cycleObserver_(*loadInfo_, output);
        executor->postToMain([this, output = std::move(output)] {
            // Read, not moved from: the pool thread may be the one that destroys this task, and
            // copies leave its members untouched (the histories' counts are atomic).
            redrawStep(output);
            if (output.quitRequested)
                quitApplication();
        });
    });
}

void AppDelegate::redrawStep(const CycleOutput& output)
{
    infoDict_ = output.info;
    exportExtras_ = output.exportExtras;
    applyVolumeRenames();
    checkAlerts();
    // A module switched off meanwhile is left alone by the redraw itself.
    for (const ModuleDescriptor* module : moduleRegistry()) {
        if (output.sampled[moduleIndex(module->schema.id)])
            reDrawModule(module->schema.id, false);
    }
    // Previews follow the live data only while someone can see them.
    if (preferencesHost_ != nullptr)
        preferencesHost_->setLiveHistory(infoDict_);
    loadSysInfoTimerFinishedBool = false;
    checkDdns(false);
    Q_EMIT cycleFinished();
}

void AppDelegate::rebootMeSetting()
{
    delete rebootTimer_;
    rebootDaysTimerInt = 0;
    changeRebootPool = false;
    if (rebootDaysInt == 0)
        return;
    qCInfo(lcApp, Tarvel::textKey("Tarvel 6 will restart after %lld days."), static_cast<long long>(rebootDaysInt));
    rebootTimer_ = new QTimer(this);
    rebootTimer_->setInterval(kRebootTickMs);
    connect(rebootTimer_, &QTimer::timeout, this, &AppDelegate::rebootMe);
    rebootTimer_->start();
}

void AppDelegate::rebootMe()
{
    ++rebootDaysTimerInt;
    if (rebootDaysInt != 0 && rebootDaysTimerInt >= rebootDaysInt * kRebootTicksPerDay) {
        rebootDaysTimerInt = 0;
        rebootAction_();
    }
}
