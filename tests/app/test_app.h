// A launched application controller over a scripted CPU source and a hand-run cycle executor.
#pragma once

#include "app/app_delegate.h"
#include "app/cycle_executor.h"
#include "collect/cpu_sample.h"
#include "collect/cpu_source.h"
#include "modules/module_descriptor.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_functions.h"

#include <QTemporaryDir>

#include <atomic>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

// Serves queued tick readings; an empty queue reads as a failed read.
class ScriptedCpuSource final : public CpuSource {
public:
    explicit ScriptedCpuSource(std::shared_ptr<std::deque<std::vector<ProcessorTicks>>> script)
        : script_(std::move(script))
    {}
    std::optional<std::vector<ProcessorTicks>> readProcessorTicks() override;
    // Answered from the next reading without taking it.
    std::optional<std::size_t> processorCount() override
    {
        return script_->empty() ? std::nullopt : std::optional(script_->front().size());
    }
    // The thread of the latest read, to check where the cycle body ran.
    std::atomic<Qt::HANDLE> readThread{nullptr};
    // Runs at the start of every read, on the reading thread: a test holds the body there.
    std::function<void()> beforeRead;
    std::optional<std::int64_t> bootTime() override { return 1000; }
    std::optional<double> awakeSeconds() override { return 42.0; }
    std::optional<LoadAverages> loadAverages() override { return LoadAverages{0.5, 0.25, 0.75}; }

private:
    std::shared_ptr<std::deque<std::vector<ProcessorTicks>>> script_;
};

// Keeps the background body and the way back until the test runs them.
class ManualExecutor final : public CycleExecutor {
public:
    void runInBackground(std::function<void()> task) override { background.push_back(std::move(task)); }
    void postToMain(std::function<void()> task) override { main.push_back(std::move(task)); }
    // Runs the oldest body and then what it posted back: one whole cycle.
    void finishCycle();

    std::deque<std::function<void()>> background;
    std::deque<std::function<void()>> main;
};

struct TestApp {
    TestApp();
    // Creates the controller over the current settings file and launches it without a timer;
    // with threaded, the cycle body runs on the real thread pool.
    void launch(bool threaded = false);
    // Launches with status items going to the given bar.
    void launchWithBar(StatusBar& bar);
    void queueTicks(std::vector<ProcessorTicks> ticks) { script->push_back(std::move(ticks)); }
    // Writes every module's first-run settings and this version to the settings file, then the
    // test's changes, as a settings file that a run of this version has already made.
    void writeSettings(const std::function<void(SettingsStore&)>& change = {}) const;
    void launchOn(StatusBar* bar, bool threaded);
    PlistSettingsStore& store() { return static_cast<PlistSettingsStore&>(app->userDefaults()); }
    // The CPU history of the last finished cycle.
    History<CpuSample> cpuHistory() const { return moduleHistory<CpuSample>(app->infoDict(), ModuleId::Cpu); }
    QString settingsPath() const { return dir.filePath(QStringLiteral("settings.plist")); }

    // The tree the other sources read below; none reads nothing but the scripted processor.
    std::filesystem::path root;
    // Puts scripted sources in place of the tree's before the launch.
    std::function<void(SourceSet&)> adjustSources;
    QTemporaryDir dir;
    std::shared_ptr<std::deque<std::vector<ProcessorTicks>>> script;
    // Runs on the controller between its creation and its launch.
    std::function<void(AppDelegate&)> beforeLaunch;
    // Handed to the scripted source at launch.
    std::function<void()> beforeCpuRead;
    ManualExecutor* executor = nullptr;
    ScriptedCpuSource* cpu = nullptr;
    std::unique_ptr<AppDelegate> app;
};
