// The Fan tab: each control writes its key, saves and posts "FanModuleNotif"; the preview is
// drawn by the status item's own picture code.
#include "modules/fan/fan_tab_view_controller.h"

#include "modules/fan/fan_picture_settings.h"
#include "modules/fan/image_fan_bar.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"

#include <QFormLayout>
#include <QGroupBox>

using namespace PrefKey;

FanTabViewController::FanTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent)
    : SensorPictureTab(ModuleId::Fan, {{1, Fan_Display_Graph, Tarvel::textKey("Graph")}, {2, Fan_Display_Text, Tarvel::textKey("Text")}},
                       FanItemSortArray, std::make_unique<ImageFanBar>(), &fanPictureSettings, store, center, parent)
{
    buildFrame("FanPreview", buildDisplay(), buildMenuItems(Fan_EnaMenu_Amon, Fan_EnaMenu_Cnsl, Fan_EnaMenu_Tmnl));
    redrawPreview();
}

QWidget* FanTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    addNumber(form, Fax_MaxRpm, Tarvel::textKey("Top of the graph"), 2000, 6000, 100, QStringLiteral(" rpm"));
    addSlider(form, Fan_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Fan_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    addSwitch(form, Fan_PileUp_TextGraph, Tarvel::textKey("Pile the text on the graph"));
    addSwitch(form, Fan_ColoredMenu, Tarvel::textKey("Colour the text by the speed"));
    addSwitch(form, Fan_GradientColor, Tarvel::textKey("Blend the warning colours"));
    addLabelSwitch(form, Fan_ShowMyLabel, Tarvel::textKey("Show the Fan label"));
    return box;
}
