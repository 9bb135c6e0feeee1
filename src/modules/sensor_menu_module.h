// What the Temp and Fan drop-downs share: the standard items and a panel of readings.
#pragma once

#include "collect/sensor_dat.h"
#include "modules/menu_module.h"
#include "modules/sensor_module_picture.h"
#include "modules/sensor_panel.h"

#include <memory>

class SensorMenuModule : public MenuModule {
    Q_OBJECT
public:
    // The panel's rows are laid out afresh at the next redraw.
    void resetMenuNowCount() override;

    // The panel under the menu's standard items; none before the menu is built.
    SensorPanel* panel() const { return panel_; }
    // The figure as the bar writes it now.
    QString barText() const { return sensor_.barText(); }

protected:
    // The three tool switches of the module's menu.
    struct MenuSwitches {
        const char* amon;
        const char* cnsl;
        const char* tmnl;
    };
    SensorMenuModule(MenuModuleDelegate* delegate, std::unique_ptr<SensorModulePicture> picture, MenuSwitches switches,
                     QObject* parent = nullptr);

    void drawBaseStatusBar() override;
    void redrawStatusItem() override;

    virtual SensorPanel* createPanel() = 0;
    // Fills the panel from the newest sample while the menu is open.
    virtual void refreshPanel(SensorPanel& panel) = 0;

    const SensorPictureSettings& settings() const { return sensor_.settings(); }
    const SensorDatDict& sensorTable() const;
    // The newest sample, or an empty one before the first.
    SensorSample newestSample() const;

private:
    SensorModulePicture& sensor_;
    MenuSwitches switches_;
    SensorPanel* panel_ = nullptr; // owned by the menu through its widget action
};
