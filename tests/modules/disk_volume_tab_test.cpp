// The Disk and Volume preference tabs: what each control stores and posts, and the live preview.
#include "desktop_tool_dirs.h"
#include "modules/disk/disk_tab_view_controller.h"
#include "modules/module_registry.h"
#include "modules/volume/volume_bar_width.h"
#include "modules/volume/volume_tab_view_controller.h"
#include "preferences/element_order_list.h"
#include "preferences/picture_preview.h"
#include "prefs/pref_notification.h"
#include "storage_picture_defaults.h"
#include "support/memory_settings_store.h"
#include "tab_settings.h"
#include "toolkit/menu_geometry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSlider>
#include <gtest/gtest.h>

using namespace PrefKey;

namespace {

template <class Tab> struct TabFixture {
    TabFixture(ModuleId id, const ModuleDefaults& settings)
    {
        QObject::connect(&center, &PrefNotificationCenter::posted,
                         [this](const PrefNotification& n) { posts.push_back(n); });
        all[moduleIndex(id)] = settings;
        theme = storeTabSettings(store, id, settings);
        tab.setMyDefaults(all, theme);
    }
    template <class Widget> Widget* find(const char* key)
    {
        return tab.template findChild<Widget*>(QLatin1String(key));
    }
    QStringList postNames() const
    {
        QStringList names;
        for (const PrefNotification& n : posts)
            names << n.name;
        return names;
    }

    DesktopToolDirs dirs = DesktopToolDirs::everyTool();
    MemorySettingsStore store;
    PrefNotificationCenter center;
    std::vector<PrefNotification> posts;
    AllModuleDefaults all;
    QVariantMap theme;
    Tab tab{store, center};
};

} // namespace

TEST(DiskVolumeTabs, DiskControlsStoreTheirKeysAndPostTheDiskNotification)
{
    TabFixture<DiskTabViewController> f(ModuleId::Disk, diskPictureDefaults(true, true, false));
    ASSERT_TRUE(f.posts.empty()) << "showing the settings is no change";

    f.find<QSlider>(Disk_GraphWidth)->setValue(5);
    EXPECT_EQ(f.store.integerForKey(Disk_GraphWidth), 50);
    f.find<QSlider>(Disk_UpdateInterval)->setValue(7);
    EXPECT_EQ(f.store.integerForKey(Disk_UpdateInterval), 7);
    f.find<QComboBox>(Disk_Graph_Mode)->setCurrentIndex(3);
    EXPECT_EQ(f.store.integerForKey(Disk_Graph_Mode), 4);
    f.find<QComboBox>(Disk_Indicator_Label)->setCurrentIndex(2);
    EXPECT_EQ(f.store.integerForKey(Disk_Indicator_Label), 3);
    f.find<QComboBox>(Disk_Percent_Mode)->setCurrentIndex(1);
    EXPECT_EQ(f.store.integerForKey(Disk_Percent_Mode), 2);
    EXPECT_EQ(f.postNames(), QStringList(5, QStringLiteral("DiskModuleNotif")));

    // Pictures behind the disks need a set per disk.
    auto* icons = f.find<QCheckBox>(Disk_WithDiskIconInBackground);
    EXPECT_TRUE(icons->isEnabled());
    f.find<QCheckBox>(Disk_ShowEachDisk)->click();
    EXPECT_FALSE(f.store.boolForKey(Disk_ShowEachDisk));
    EXPECT_FALSE(icons->isEnabled());

    f.posts.clear();
    f.find<QCheckBox>(Disk_ShowMyLabel)->click();
    EXPECT_EQ(f.postNames(), (QStringList{"DiskModuleNotif", "GeneralModuleNotif"}));
    f.posts.clear();
    f.find<QCheckBox>(Disk_EnaMenu_Tmnl)->click();
    EXPECT_TRUE(f.posts.at(0).userInfo.value(NotifKey::ModuleItemRefreshNow).toBool());

    auto* list = f.find<ElementOrderList>(DiskItemSortArray);
    list->item(2)->setCheckState(Qt::Checked);
    EXPECT_TRUE(f.store.boolForKey(Disk_Display_Text));
    list->moveEntry(2, 0);
    EXPECT_EQ(f.store.arrayForKey(DiskItemSortArray), (QVariantList{3, 1, 2}));
}

TEST(DiskVolumeTabs, VolumeLabelsCountFromZeroAndThePreviewFollowsAtOnce)
{
    const double height = TvlClasses::retRootMenuHeight();
    ModuleDefaults settings = volumePictureDefaults(8 | 16); // text and percentage
    settings.set(Vlms_Text_Label, qint64{1});
    // Measured as the loader measures them, in the settings' font.
    MemorySettingsStore unused;
    moduleSchema(ModuleId::Volume)
        .derive(settings, unused, {{_FontPostScriptName, settings.value(_FontPostScriptName)}}, allModuleSchemas());
    ASSERT_GT(settings.intValue(VlmsInnerTextLabelWidth), 0);
    TabFixture<VolumeTabViewController> f(ModuleId::Volume, settings);
    const auto previewWidth = [&f] {
        return f.tab.template findChild<PicturePreview*>(QStringLiteral("VolumePreview"))
            ->image()
            .deviceIndependentSize()
            .width();
    };
    // Before the descriptions arrive, one combined set.
    EXPECT_DOUBLE_EQ(previewWidth(), volumeBarWidth(volumePictureSettings(settings), 1, height));
    f.tab.setVolumeBaseDict(std::make_shared<const VolumeBaseDict>(twoVolumes()));
    EXPECT_DOUBLE_EQ(previewWidth(), volumeBarWidth(volumePictureSettings(settings), 2, height));

    auto* labels = f.find<QComboBox>(Vlms_Text_Label);
    EXPECT_EQ(labels->currentIndex(), 1);
    labels->setCurrentIndex(0); // "None"
    EXPECT_EQ(f.store.integerForKey(Vlms_Text_Label), 0);
    // The label column is measured again at once: the preview loses it before any reload.
    const ModuleDefaults without = PrefFunctions::loadModuleDefaults(ModuleId::Volume, f.store, f.theme);
    EXPECT_EQ(without.intValue(VlmsInnerTextLabelWidth), 0);
    EXPECT_DOUBLE_EQ(previewWidth(), volumeBarWidth(volumePictureSettings(without), 2, height));

    f.find<QComboBox>(Vlms_Percent_Mode)->setCurrentIndex(1);
    EXPECT_EQ(f.store.integerForKey(Vlms_Percent_Mode), 2);
    auto* bold = f.find<QCheckBox>(Vlms_LineAsBold);
    EXPECT_FALSE(bold->isEnabled());
    f.find<QCheckBox>(Vlms_GraphAsLine)->click();
    EXPECT_TRUE(bold->isEnabled());
    for (const char* key : {Vlms_ColoredValue, Vlms_GradientColor, Vlms_WithDiskIconInBackground})
        f.find<QCheckBox>(key)->click();
    EXPECT_TRUE(f.store.boolForKey(Vlms_ColoredValue) && f.store.boolForKey(Vlms_GradientColor) &&
                f.store.boolForKey(Vlms_WithDiskIconInBackground));
    EXPECT_EQ(f.postNames(), QStringList(6, QStringLiteral("VlmsModuleNotif")));
}
