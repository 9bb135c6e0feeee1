// The Temp tab: each control writes its key, saves and posts "TempModuleNotif"; the preview is
// drawn by the status item's own picture code.
#include "modules/temp/temp_tab_view_controller.h"

#include "modules/menu_module.h"
#include "modules/temp/image_temp_bar.h"
#include "modules/temp/temp_picture_settings.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>

using namespace PrefKey;

TempTabViewController::TempTabViewController(MenuModuleDelegate* delegate, SettingsStore& store,
                                             PrefNotificationCenter& center, QWidget* parent)
    : SensorPictureTab(ModuleId::Temp, {{1, Temp_Display_Graph, Tarvel::textKey("Graph")}, {2, Temp_Display_Text, Tarvel::textKey("Text")}},
                       TempItemSortArray, std::make_unique<ImageTempBar>(), &tempPictureSettings, store, center,
                       parent)
{
    buildFrame("TempPreview", buildDisplay(), buildMenuItems(Temp_EnaMenu_Amon, Temp_EnaMenu_Cnsl, Temp_EnaMenu_Tmnl));
    if (delegate != nullptr)
        setTempBaseDict(delegate->sensorDatDict());
    redrawPreview();
}

QWidget* TempTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    sensorPopup_ = new QComboBox();
    sensorPopup_->setObjectName(QLatin1String(Temp_ShowTempOnMenu));
    form->addRow(Tarvel::localized("Temperature shown"), sensorPopup_);
    connect(sensorPopup_, &QComboBox::currentIndexChanged, this, &TempTabViewController::sensorChosen);
    addPopup(form, Temp_Unit_Mode, Tarvel::textKey("Unit"), GeneralFunctions::retTempUnit());
    addNumber(form, Temp_MaxTemp, Tarvel::textKey("Top of the graph"), 60, 100, 5, QStringLiteral("°C"));
    addSlider(form, Temp_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Temp_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    addSwitch(form, Temp_PileUp_TextGraph, Tarvel::textKey("Pile the text on the graph"));
    addSwitch(form, Temp_ColoredMenu, Tarvel::textKey("Colour the text by the temperature"));
    addSwitch(form, Temp_GradientColor, Tarvel::textKey("Blend the warning colours"));
    addSwitch(form, Temp_AccessForSmartDisks, Tarvel::textKey("Ask the drives for their temperatures"));
    addLabelSwitch(form, Temp_ShowMyLabel, Tarvel::textKey("Show the Temp label"));
    return box;
}

void TempTabViewController::setTempBaseDict(const SensorDatDict& table)
{
    sensorNames_.clear();
    if (table.tempData) {
        for (const TempSensorEntry& entry : *table.tempData)
            sensorNames_.append(entry.name);
    }
    fillSensorPopup();
}

void TempTabViewController::loadViews()
{
    SensorPictureTab::loadViews();
    fillSensorPopup();
}

void TempTabViewController::fillSensorPopup()
{
    if (sensorPopup_ == nullptr)
        return;
    const QSignalBlocker quiet(sensorPopup_);
    const QString stored = myDefaults().stringValue(QLatin1String(Temp_ShowTempOnMenu));
    sensorPopup_->clear();
    sensorPopup_->addItem(Tarvel::localized("Average of all sensors"), QLatin1String(kTempShowAverage));
    for (const QString& name : std::as_const(sensorNames_))
        sensorPopup_->addItem(name, name);
    // A sensor chosen once and missing now stays chosen: it may come back with its driver.
    if (!stored.isEmpty() && stored != QLatin1String(kTempShowAverage) && !sensorNames_.contains(stored))
        sensorPopup_->addItem(Tarvel::localized("%1 (not found)").arg(stored), stored);
    const int index = sensorPopup_->findData(stored);
    sensorPopup_->setCurrentIndex(index < 0 ? 0 : index);
}

void TempTabViewController::sensorChosen(int index)
{
    if (loading() || index < 0)
        return;
    store().setString(QLatin1String(Temp_ShowTempOnMenu), sensorPopup_->itemData(index).toString());
    settingsChanged();
    commit({{QLatin1String(NotifKey::ChangeMenuCount), true}});
}

QString TempTabViewController::shownSensor(const ModuleDefaults& defaults) const
{
    return tempShownSensor(defaults);
}
