// The CPU status item's drop-down: the averaged graph and the processor panel.
#pragma once

#include "modules/cpu/cpu_menu_controller.h"
#include "modules/cpu/cpu_module_picture.h"
#include "modules/menu_module.h"

class QLabel;

class CPU_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit CPU_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    CpuModulePicture& cpuPicture() const { return cpu_; }
    // The detail panel under the graph; none before the menu is built.
    CPU_MenuController* controller() const { return cpuMenuController; }

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;
    void prepareMenuOpening() override;

private:
    CpuModulePicture& cpu_;
    QLabel* menuGraph_ = nullptr;                    // owned by the menu through its widget action
    CPU_MenuController* cpuMenuController = nullptr; // likewise
};
