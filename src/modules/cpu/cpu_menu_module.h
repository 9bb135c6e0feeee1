// The CPU status item: its picture in the bar, and its menu with the averaged graph.
#pragma once

#include "collect/cpu_sample.h"
#include "collect/history.h"
#include "modules/cpu/cpu_menu_controller.h"
#include "modules/cpu/image_cpu_bar.h"
#include "modules/menu_module.h"
#include "modules/module_settings.h"

class QLabel;

class CPU_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit CPU_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<CpuSample>& history) { resumeArray = history; }
    void refreshBar() override;

    // The detail panel under the graph; none before the menu is built.
    CPU_MenuController* controller() const { return cpuMenuController; }

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;
    void prepareMenuOpening() override;
    void settingsChanged() override { settings_.read(cpuPictureSettings, myDefaults, withMenuLayout()); }
    QImage drawMenuGraph() override { return menuGraph(settings_.menu); }

private:
    static constexpr double kMenuGraphHeight = 20;

    QImage menuGraph(const CpuPictureSettings& settings);

    ImageCpuBar imageCpuBar;
    ImageCpuBar imageCpuMenu;
    QLabel* menuGraph_ = nullptr;                    // owned by the menu through its widget action
    CPU_MenuController* cpuMenuController = nullptr; // likewise
    History<CpuSample> resumeArray;
    ModuleSettings<CpuPictureSettings> settings_;
};
