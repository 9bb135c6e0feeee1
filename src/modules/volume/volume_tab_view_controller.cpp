// The Volume tab: each control writes its key, saves and posts "VlmsModuleNotif"; the preview is
// drawn by the status item's own picture code.
#include "modules/volume/volume_tab_view_controller.h"

#include "modules/volume/image_volume_bar.h"
#include "modules/volume/volume_bar_width.h"
#include "preferences/picture_preview.h"
#include "prefs/pref_keys.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>

using namespace PrefKey;

namespace {

// The label pairs as "U: / F:", the hyphen pair as "None".
QStringList labelChoices()
{
    QStringList choices;
    for (const QStringList& pair : PlistFunction::retVolumeUsedFree())
        choices.append(pair.value(0) == QLatin1String("-") ? Tarvel::localized("None") : pair.join(QStringLiteral(" / ")));
    return choices;
}

} // namespace

const QList<PictureSettingsTab::Element>& VolumeTabViewController::elements()
{
    static const QList<Element> list{{1, Vlms_Display_BarChart, Tarvel::textKey("Bar chart")},
                                     {2, Vlms_Display_CycleChart, Tarvel::textKey("Cycle chart")},
                                     {3, Vlms_Display_Graph, Tarvel::textKey("Graph")},
                                     {4, Vlms_Display_Text, Tarvel::textKey("Text")},
                                     {5, Vlms_Display_Percent, Tarvel::textKey("Percentage")}};
    return list;
}

VolumeTabViewController::VolumeTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent)
    : SampledPictureTab(ModuleId::Volume, elements(), VlmsItemSortArray, store, center, parent)
    , volumeBaseDict_(std::make_shared<const VolumeBaseDict>())
{
    buildFrame("VolumePreview", buildDisplay(),
               buildMenuItems(Volume_EnaMenu_Amon, Volume_EnaMenu_Cnsl, Volume_EnaMenu_Tmnl));
    redrawPreview();
}

QWidget* VolumeTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    addSlider(form, Vlms_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Vlms_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    // Unlike the other label settings, this one counts from 0.
    addPopup(form, Vlms_Text_Label, Tarvel::textKey("Text labels"), labelChoices(), 0);
    addPopup(form, Vlms_Percent_Mode, Tarvel::textKey("Percentage"), PlistFunction::retVolumePercentKind());
    QCheckBox* line = addSwitch(form, Vlms_GraphAsLine, Tarvel::textKey("Draw the graph as a line"));
    QCheckBox* bold = addSwitch(form, Vlms_LineAsBold, Tarvel::textKey("Heavy line"));
    connect(line, &QCheckBox::toggled, bold, &QWidget::setEnabled);
    bold->setEnabled(line->isChecked());
    addSwitch(form, Vlms_ColoredValue, Tarvel::textKey("Colour the figures by how full the volume is"));
    addSwitch(form, Vlms_GradientColor, Tarvel::textKey("Blend the warning colours"));
    QCheckBox* each = addSwitch(form, Vlms_ShowEachDisk, Tarvel::textKey("Show each volume"));
    QCheckBox* icons = addSwitch(form, Vlms_WithDiskIconInBackground, Tarvel::textKey("Volume pictures behind each volume"));
    // A picture stands for one volume, so it goes only behind per-volume sets.
    connect(each, &QCheckBox::toggled, icons, &QWidget::setEnabled);
    icons->setEnabled(each->isChecked());
    addLabelSwitch(form, Vlms_ShowMyLabel, Tarvel::textKey("Show the Volume label"));
    return box;
}

void VolumeTabViewController::setVolumeBaseDict(std::shared_ptr<const VolumeBaseDict> volumeBaseDict)
{
    if (volumeBaseDict)
        volumeBaseDict_ = std::move(volumeBaseDict);
    redrawPreview();
}

QImage VolumeTabViewController::drawPreview(const ModuleDefaults& defaults)
{
    const VolumePictureSettings settings = volumePictureSettings(defaults);
    const std::vector<StorageBarSet> sets = volumeBarSets(settings, *volumeBaseDict_);
    const double height = TvlClasses::retRootMenuHeight();
    ImageVolumeBar bar;
    bar.redrawWithSize(QSizeF(volumeBarWidth(settings, sets.size(), height), height),
                       TvlClasses::retStatusMenuInsets(volumeShownElementCount(settings)), false, true, settings,
                       liveHistory(), sets);
    return bar.image(devicePixelRatioF() * PicturePreview::zoom());
}
