// The controller harness shared by the application tests.
#include "test_app.h"
#include "app/front_ends/desktop_parts.h"

#include "modules/module_registry.h"
#include "prefs/pref_keys.h"

#include <QThread>
#include <gtest/gtest.h>

std::optional<std::vector<ProcessorTicks>> ScriptedCpuSource::readProcessorTicks()
{
    readThread = QThread::currentThreadId();
    if (beforeRead)
        beforeRead();
    if (script_->empty())
        return std::nullopt;
    auto ticks = script_->front();
    script_->pop_front();
    return ticks;
}

void ManualExecutor::finishCycle()
{
    auto body = std::move(background.front());
    background.pop_front();
    body();
    while (!main.empty()) {
        auto task = std::move(main.front());
        main.pop_front();
        task();
    }
}

TestApp::TestApp()
    : script(std::make_shared<std::deque<std::vector<ProcessorTicks>>>())
{
    // Themes go to a folder of the test's own.
    qputenv("XDG_DATA_HOME", dir.filePath(QStringLiteral("data")).toUtf8());
}

void TestApp::writeSettings(const std::function<void(SettingsStore&)>& change) const
{
    PlistSettingsStore store(settingsPath());
    for (const ModuleSchema* schema : allModuleSchemas())
        PrefFunctions::initializeModulePreference(*schema, store);
    store.setString(PrefKey::AppVersion, QStringLiteral(TARVEL_VERSION));
    if (change)
        change(store);
    EXPECT_TRUE(store.synchronize());
}

void TestApp::launch(bool threaded)
{
    launchOn(nullptr, threaded);
}

void TestApp::launchWithBar(StatusBar& bar)
{
    launchOn(&bar, false);
}

void TestApp::launchOn(StatusBar* bar, bool threaded)
{
    SourceSet sources = root.empty() ? SourceSet{} : makeSourceSet(root);
    auto source = std::make_unique<ScriptedCpuSource>(script);
    cpu = source.get();
    cpu->beforeRead = beforeCpuRead;
    sources.cpu = std::move(source);
    if (adjustSources)
        adjustSources(sources);
    app = std::make_unique<AppDelegate>(std::make_unique<PlistSettingsStore>(settingsPath()), std::move(sources));
    attachDesktop(*app, bar);
    if (!threaded) {
        auto manual = std::make_unique<ManualExecutor>();
        executor = manual.get();
        app->setCycleExecutor(std::move(manual));
    }
    if (beforeLaunch)
        beforeLaunch(*app);
    app->applicationDidFinishLaunching(false);
}
