// The CPU preferences tab: what each control stores and posts, and its live preview.
#include "collect/info_dict.h"
#include "cpu_picture_defaults.h"
#include "desktop_tool_dirs.h"
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/cpu_tab_view_controller.h"
#include "preferences/element_order_list.h"
#include "preferences/picture_preview.h"
#include "prefs/plist_io.h"
#include "prefs/pref_notification.h"
#include "prefs/theme_files.h"
#include "support/memory_settings_store.h"
#include "tab_settings.h"
#include "toolkit/menu_geometry.h"

#include <QCheckBox>
#include <QSlider>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

using namespace PrefKey;

namespace {

struct TabFixture {
    // themeKeys: entries of the theme beyond its font.
    explicit TabFixture(const ModuleDefaults& cpu, const QVariantMap& themeKeys = {})
    {
        QObject::connect(&center, &PrefNotificationCenter::posted,
                         [this](const PrefNotification& n) { posts.push_back(n); });
        all[moduleIndex(ModuleId::Cpu)] = cpu;
        theme = storeTabSettings(store, ModuleId::Cpu, cpu);
        theme.insert(themeKeys);
        shown = store.values;
        tab.setMyDefaults(all, theme);
    }
    // The settings as the store holds them now, which the preview shows after a change.
    ModuleDefaults stored() { return PrefFunctions::loadModuleDefaults(ModuleId::Cpu, store, theme); }
    template <class Widget> Widget* find(const char* key) { return tab.findChild<Widget*>(QLatin1String(key)); }
    double previewWidth() { return find<PicturePreview>("CpuPreview")->image().deviceIndependentSize().width(); }

    DesktopToolDirs dirs = DesktopToolDirs::everyTool();
    MemorySettingsStore store;
    PrefNotificationCenter center;
    std::vector<PrefNotification> posts;
    AllModuleDefaults all;
    QVariantMap theme;
    QVariantMap shown; // the store as the tab found it
    CpuTabViewController tab{store, center};
};

ModuleDefaults graphAndText()
{
    ModuleDefaults d = cpuPictureDefaults({.graph = true, .text = true}, false);
    d.set(Cpu_GraphWidth, qint64{3});
    d.set(Cpu_UpdateInterval, qint64{2});
    return d;
}

} // namespace

TEST(CpuTab, EachControlStoresItsKeyAndPostsTheCpuNotification)
{
    TabFixture f(graphAndText());
    ASSERT_TRUE(f.posts.empty()) << "showing the settings is no change";
    ASSERT_EQ(f.store.values, f.shown);

    auto* graph = f.find<QSlider>(Cpu_GraphWidth);
    EXPECT_EQ(graph->value(), CpuTabViewController::kGraphSliderMin) << "a stored 3 sits at the first step";
    graph->setValue(5);
    EXPECT_EQ(f.store.integerForKey(Cpu_GraphWidth), 50);
    f.find<QSlider>(Cpu_UpdateInterval)->setValue(7);
    EXPECT_EQ(f.store.integerForKey(Cpu_UpdateInterval), 7);
    ASSERT_EQ(f.posts.size(), 2U);
    EXPECT_EQ(f.posts.back().name, QLatin1String("CpuModuleNotif"));

    auto* bold = f.find<QCheckBox>(CPU_LineAsBold);
    EXPECT_FALSE(bold->isEnabled());
    f.find<QCheckBox>(CPU_GraphAsLine)->click();
    EXPECT_TRUE(bold->isEnabled());

    const struct {
        const char* key;
        bool refreshesItems;
        bool postsGeneral;
    } switches[] = {{Cpu_AverageMultiProcessors, false, false},
                    {Cpu_Text_DisplayAverage, false, false},
                    {CPU_LineAsBold, false, false},
                    {Cpu_ShowMyLabel, false, true},
                    {CPU_EnaMenu_Amon, true, false},
                    {CPU_EnaMenu_Cnsl, true, false},
                    {CPU_EnaMenu_Tmnl, true, false}};
    for (const auto& s : switches) {
        SCOPED_TRACE(s.key);
        f.posts.clear();
        auto* box = f.find<QCheckBox>(s.key);
        box->click();
        EXPECT_EQ(f.store.boolForKey(s.key), box->isChecked());
        ASSERT_EQ(f.posts.size(), s.postsGeneral ? 2U : 1U);
        EXPECT_EQ(f.posts[0].name, QLatin1String("CpuModuleNotif"));
        EXPECT_EQ(f.posts[0].userInfo.value(NotifKey::ModuleItemRefreshNow).toBool(), s.refreshesItems);
        if (s.postsGeneral) {
            EXPECT_EQ(f.posts[1].name, QLatin1String("GeneralModuleNotif"));
        }
    }

    auto* list = f.find<ElementOrderList>(CpuItemSortArray);
    list->item(2)->setCheckState(Qt::Checked);
    EXPECT_TRUE(f.store.boolForKey(Cpu_Display_CircleMeter));
    list->item(0)->setCheckState(Qt::Unchecked);
    EXPECT_FALSE(f.store.boolForKey(Cpu_Display_Graph));
    list->moveEntry(3, 0);
    EXPECT_EQ(f.store.arrayForKey(CpuItemSortArray), (QVariantList{4, 1, 2, 3}));
    EXPECT_EQ(f.posts.back().name, QLatin1String("CpuModuleNotif"));
}

TEST(CpuTab, PreviewIsTheBarPictureOfTheTabsSettings)
{
    const double height = TvlClasses::retRootMenuHeight();
    ModuleDefaults settings = graphAndText();
    settings.set(Cpu_GraphWidth, qint64{40});
    TabFixture f(settings);
    // Before the first sample every processor of this machine shows at 0%.
    const auto processors = static_cast<std::size_t>(std::max(1, QThread::idealThreadCount()));
    EXPECT_DOUBLE_EQ(f.previewWidth(), cpuBarWidth(cpuPictureSettings(settings), processors, height));

    InfoDict info;
    info.setHistory(moduleIndex(ModuleId::Cpu), cpuHistory(CpuSample(5, CpuRecord{3, 2, 1, 4}), 3));
    f.tab.setLiveHistory(info);
    EXPECT_DOUBLE_EQ(f.previewWidth(), cpuBarWidth(cpuPictureSettings(settings), 4, height));

    // Changes show at once, before the application hands the reloaded settings back.
    f.find<ElementOrderList>(CpuItemSortArray)->item(1)->setCheckState(Qt::Checked);
    f.find<QSlider>(Cpu_GraphWidth)->setValue(6);
    const ModuleDefaults stored = f.stored();
    EXPECT_TRUE(stored.boolValue(Cpu_Display_LevelBar));
    EXPECT_EQ(stored.intValue(Cpu_GraphWidth), 60);
    EXPECT_DOUBLE_EQ(f.previewWidth(), cpuBarWidth(cpuPictureSettings(stored), 4, height));
}

TEST(CpuTab, PreviewShowsTheThemeOnItsOwnPanelAndItsAlternativeOnTheOther)
{
    QTemporaryDir home;
    const QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
    TvlClasses::checkMyApplicationSupportDir();
    const auto light = PlistIo::readDictionary(TvlClasses::retBundleThemePath(QStringLiteral("_light_theme")));
    ASSERT_TRUE(light);
    ASSERT_TRUE(
        PlistIo::writeDictionaryAtomically(TvlClasses::retThemeFilePath(QStringLiteral("light.plist")), *light));

    // A dark theme whose alternative is the light one: dark strip first, the light one below.
    TabFixture dark(graphAndText(), {{_ForDarkAppearance, true}, {_AlternativeTheme, QStringLiteral("light.plist")}});
    auto* preview = dark.find<PicturePreview>("CpuPreview");
    EXPECT_FALSE(preview->image().isNull());
    EXPECT_FALSE(preview->alternativeImage().isNull());
    preview->resize(300, preview->height());
    const QImage shot = preview->grab().toImage();
    const int strip = shot.height() / 2;
    EXPECT_EQ(shot.pixelColor(shot.width() / 2, strip / 2), PicturePreview::darkPanelColor());
    EXPECT_EQ(shot.pixelColor(shot.width() / 2, strip + strip / 2), PicturePreview::lightPanelColor());

    // A light theme naming no alternative that exists: its own strip alone.
    TabFixture alone(graphAndText(), {{_AlternativeTheme, QStringLiteral("gone.plist")}});
    auto* single = alone.find<PicturePreview>("CpuPreview");
    EXPECT_TRUE(single->alternativeImage().isNull());
    EXPECT_LT(single->height(), preview->height());
    single->resize(300, single->height());
    EXPECT_EQ(single->grab().toImage().pixelColor(150, single->height() / 2), PicturePreview::lightPanelColor());
    qputenv("XDG_DATA_HOME", dataHome);
}
