// What the Disk and Volume drop-downs share: the menu's frame, its graph and the redraws.
#pragma once

#include "modules/menu_module.h"
#include "modules/storage_pictures.h"

class QLabel;

// Both menus show every disk or volume together in one graph above a panel of blocks.
class StorageMenuModule : public MenuModule {
    Q_OBJECT
public:
    bool checkcMenuOpened() const { return menuOpened(); }
    // The descriptions changed: the menu's rows follow at its next opening.
    void setStorageDescriptions(const DiskBaseDict& disks, std::shared_ptr<const VolumeBaseDict> volumes) override;

protected:
    StorageMenuModule(MenuModuleDelegate* delegate, std::unique_ptr<ModulePicture> picture, QObject* parent);

    // The keys of the menu's three tool switches and of the graph's width.
    struct MenuKeys {
        const char* amon;
        const char* cnsl;
        const char* tmnl;
        const char* graphWidth;
    };
    // The standard items, Open Disk Utility where there is one, and the graph.
    void addBaseItems(const MenuKeys& keys, const ThemePicture& utilityIcon);
    // The panel below the graph; the menu owns it.
    void addPanel(QWidget* panel);

    // The graph and the figures are drawn only for a menu that is shown.
    void redrawStatusItem() final;
    virtual void replacePanelData() = 0;

private:
    QLabel* menuGraph_ = nullptr; // owned by the menu through its widget action
};

// The typed picture and panel of a Disk or Volume drop-down.
template <class Picture, class Panel> class StorageMenuModuleOf : public StorageMenuModule {
public:
    Picture& storagePicture() const { return storage_; }
    // The panel of blocks; none before the menu is built.
    Panel* controller() const { return panel_; }

protected:
    StorageMenuModuleOf(MenuModuleDelegate* delegate, QObject* parent)
        : StorageMenuModule(delegate, std::make_unique<Picture>(delegate), parent)
        , storage_(static_cast<Picture&>(picture()))
    {}

    void replacePanelData() override
    {
        if (panel_ != nullptr)
            panel_->replaceData(storage_.history());
    }

    Picture& storage_;
    Panel* panel_ = nullptr; // owned by the menu through its widget action
};
