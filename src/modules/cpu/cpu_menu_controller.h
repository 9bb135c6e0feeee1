// The detail panel under the CPU menu's graph: shares, machine, uptimes, load, busiest processes.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "modules/cpu/cpu_picture_settings.h"

#include <QThreadPool>
#include <QVariantMap>
#include <QWidget>

#include <array>

class LoadSystemInformation;
class QLabel;
class QPushButton;
class SettingsStore;

class CPU_MenuController final : public QWidget {
    Q_OBJECT
public:
    // The busiest processes listed.
    static constexpr int kProcessRows = 10;

    CPU_MenuController(LoadSystemInformation& loadInfo, SettingsStore& defaults, QWidget* parent = nullptr);
    ~CPU_MenuController() override;

    // Static facts: the machine's name and picture, the processor, the graphics processors.
    // label is the theme's processor picture, the module's label.
    void loadBaseData(const ThemePicture& label);
    // Refreshes the names of running desktop applications.
    void reloadProcDict();
    // Every tick while the menu is open: the shares now, and in the background the lines and
    // processes, which arrive a moment later.
    void replaceData(qint64 interval, const CpuPictureSettings& settings, const History<CpuSample>& resumeArray);

    // The rows as shown, for tests and the snapshot.
    QString shareText(int state) const;
    QString optionText(int row) const;
    QString processNames() const;
    QString machineTitle() const;

Q_SIGNALS:
    // The background lines and processes have been shown.
    void detailsUpdated();

private:
    void applyDetails(const QStringList& options, const QStringList& processes);
    void machinNameButtonClicked();

    LoadSystemInformation& loadInfo_;
    SettingsStore& defaults_;
    std::array<QLabel*, 4> swatches_{};
    std::array<QLabel*, 4> shareLabels_{};
    QPushButton* machinNameButton = nullptr;
    QLabel* machinImage = nullptr;
    QLabel* cpuKindLabel = nullptr;
    std::array<QLabel*, 2> gpuLabels_{};
    std::array<QLabel*, 5> optionLabels_{}; // boot, awake, threads, load, host
    QLabel* processNameLabel = nullptr;
    QLabel* processPerLabel = nullptr;
    QVariantMap procDict;
    bool detailsInFlight_ = false;
    // Last member: its destructor waits for background work that uses the members above.
    QThreadPool pool_;
};
