// The Memory status item's drop-down: the graph and the memory panel.
#pragma once

#include "modules/memory/memory_menu_controller.h"
#include "modules/memory/memory_module_picture.h"
#include "modules/menu_module.h"

class QLabel;

class Memory_MenuModule final : public MenuModule {
    Q_OBJECT
public:
    explicit Memory_MenuModule(MenuModuleDelegate* delegate, QObject* parent = nullptr);

    MemoryModulePicture& memoryPicture() const { return memory_; }
    // The detail panel under the graph; none before the menu is built.
    Memory_MenuController* controller() const { return memoryMenuController; }

protected:
    void drawBaseStatusBar() override;
    void redrawStatusItem() override;
    void prepareMenuOpening() override;

private:
    MemoryModulePicture& memory_;
    QLabel* menuGraph_ = nullptr;                          // owned by the menu through its widget action
    Memory_MenuController* memoryMenuController = nullptr; // likewise
};
