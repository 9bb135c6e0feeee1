// What the Temp and Fan status items share: one figure in the bar, a panel of readings in the menu.
#pragma once

#include "collect/history.h"
#include "collect/sensor_dat.h"
#include "modules/image_sensor_bar.h"
#include "modules/menu_module.h"
#include "modules/sensor_panel.h"
#include "modules/sensor_picture_settings.h"

#include <memory>

class SensorMenuModule : public MenuModule {
    Q_OBJECT
public:
    void setHistory(const InfoDict& info) override;
    void setResumeArray(const History<SensorSample>& history) { resumeArray = history; }
    void refreshBar() override;
    // The panel's rows are laid out afresh at the next redraw.
    void resetMenuNowCount() override;

    // The panel under the menu's standard items; none before the menu is built.
    SensorPanel* panel() const { return panel_; }
    // The figure as the bar writes it now.
    QString barText() const;

protected:
    // The three tool switches of the module's menu.
    struct MenuSwitches {
        const char* amon;
        const char* cnsl;
        const char* tmnl;
    };
    SensorMenuModule(MenuModuleDelegate* delegate, ModuleId id, std::unique_ptr<ImageSensorBar> bar,
                     SensorPictureSettings (*build)(const ModuleDefaults&), MenuSwitches switches,
                     QObject* parent = nullptr);

    void drawBaseStatusBar() override;
    void redrawStatusItem() override;
    void settingsChanged() override { settings_ = build_(myDefaults); }

    // The sample entry the bar follows: a sensor's name, or empty for the average.
    virtual QString shownSensor() const { return {}; }
    virtual SensorPanel* createPanel() = 0;
    // Fills the panel from the newest sample while the menu is open.
    virtual void refreshPanel(SensorPanel& panel) = 0;

    const SensorPictureSettings& settings() const { return settings_; }
    const SensorDatDict& sensorTable() const;

    History<SensorSample> resumeArray;

private:
    std::unique_ptr<ImageSensorBar> bar_;
    SensorPictureSettings (*build_)(const ModuleDefaults&);
    MenuSwitches switches_;
    SensorPictureSettings settings_;
    SensorPanel* panel_ = nullptr; // owned by the menu through its widget action
};
