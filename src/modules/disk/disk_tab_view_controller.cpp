// The Disk tab: each control writes its key, saves and posts "DiskModuleNotif"; the preview is
// drawn by the status item's own picture code.
#include "modules/disk/disk_tab_view_controller.h"

#include "modules/disk/disk_bar_width.h"
#include "modules/disk/image_disk_bar.h"
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

// The label pairs as "R: / W:", the hyphen pair as "None".
QStringList labelChoices()
{
    QStringList choices;
    for (const QStringList& pair : PlistFunction::retDiskReadWrite())
        choices.append(pair.value(0) == QLatin1String("-") ? Tarvel::localized("None") : pair.join(QStringLiteral(" / ")));
    return choices;
}

} // namespace

const QList<PictureSettingsTab::Element>& DiskTabViewController::elements()
{
    static const QList<Element> list{{1, Disk_Display_Indicator, Tarvel::textKey("Read/write lamps")},
                                     {2, Disk_Display_Graph, Tarvel::textKey("Graph")},
                                     {3, Disk_Display_Text, Tarvel::textKey("Text")}};
    return list;
}

DiskTabViewController::DiskTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent)
    : SampledPictureTab(ModuleId::Disk, elements(), DiskItemSortArray, store, center, parent)
{
    buildFrame("DiskPreview", buildDisplay(), buildMenuItems(Disk_EnaMenu_Amon, Disk_EnaMenu_Cnsl, Disk_EnaMenu_Tmnl));
    redrawPreview();
}

QWidget* DiskTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    addSlider(form, Disk_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Disk_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    addPopup(form, Disk_Indicator_Label, Tarvel::textKey("Lamp labels"), labelChoices());
    addPopup(form, Disk_Graph_Label, Tarvel::textKey("Graph labels"), labelChoices());
    addPopup(form, Disk_Text_Label, Tarvel::textKey("Text labels"), labelChoices());
    addPopup(form, Disk_Graph_Mode, Tarvel::textKey("Graph style"), PlistFunction::retGeneralGraphKind());
    addPopup(form, Disk_Percent_Mode, Tarvel::textKey("Graph scale"),
             {Tarvel::localized("Relative to the busiest moment shown"), Tarvel::localized("Logarithmic")});
    QCheckBox* each = addSwitch(form, Disk_ShowEachDisk, Tarvel::textKey("Show each disk"));
    QCheckBox* icons = addSwitch(form, Disk_WithDiskIconInBackground, Tarvel::textKey("Disk pictures behind each disk"));
    // A picture stands for one disk, so it goes only behind per-disk sets.
    connect(each, &QCheckBox::toggled, icons, &QWidget::setEnabled);
    icons->setEnabled(each->isChecked());
    // The menu lists a block per disk, so it is rebuilt for the new list.
    addSwitch(form, Disk_ShowVirtualDisks, Tarvel::textKey("Show virtual devices (loop, LVM, RAID)"),
              {{QLatin1String(NotifKey::ModuleItemRefreshNow), true}});
    addLabelSwitch(form, Disk_ShowMyLabel, Tarvel::textKey("Show the Disk label"));
    return box;
}

void DiskTabViewController::setDiskBaseDict(const DiskBaseDict& diskBaseDict)
{
    diskBaseDict_ = diskBaseDict;
    redrawPreview();
}

QImage DiskTabViewController::drawPreview(const ModuleDefaults& defaults)
{
    const DiskPictureSettings settings = diskPictureSettings(defaults);
    const std::vector<StorageBarSet> sets = diskBarSets(settings, diskBaseDict_);
    const double height = TvlClasses::retRootMenuHeight();
    ImageDiskBar bar;
    bar.redrawWithSize(QSizeF(diskBarWidth(settings, sets.size()), height),
                       TvlClasses::retStatusMenuInsets(diskShownElementCount(settings)), false, true, settings,
                       liveHistory(), sets);
    return bar.image(devicePixelRatioF() * PicturePreview::zoom());
}
