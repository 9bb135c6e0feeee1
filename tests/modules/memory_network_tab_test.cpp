// The Memory and Network preferences tabs: what each control stores and posts, and the preview.
#include "collect/info_dict.h"
#include "desktop_tool_dirs.h"
#include "memory_network_defaults.h"
#include "modules/memory/memory_bar_width.h"
#include "modules/memory/memory_tab_view_controller.h"
#include "modules/network/network_bar_width.h"
#include "modules/network/network_tab_view_controller.h"
#include "preferences/element_order_list.h"
#include "preferences/picture_preview.h"
#include "prefs/pref_notification.h"
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
    template <class Make>
    TabFixture(ModuleId id, const ModuleDefaults& defaults, Make make)
        : tab(make(store, center))
    {
        QObject::connect(&center, &PrefNotificationCenter::posted,
                         [this](const PrefNotification& n) { posts.push_back(n); });
        all[moduleIndex(id)] = defaults;
        theme = storeTabSettings(store, id, defaults);
        shown = store.values;
        tab->setMyDefaults(all, theme);
    }
    template <class Widget> Widget* find(const char* key)
    {
        return tab->template findChild<Widget*>(QLatin1String(key));
    }
    double previewWidth(const char* name)
    {
        return find<PicturePreview>(name)->image().deviceIndependentSize().width();
    }

    DesktopToolDirs dirs = DesktopToolDirs::everyTool();
    MemorySettingsStore store;
    PrefNotificationCenter center;
    std::vector<PrefNotification> posts;
    AllModuleDefaults all;
    QVariantMap theme;
    QVariantMap shown; // the store as the tab found it
    std::unique_ptr<Tab> tab;
};

struct SwitchCase {
    const char* key;
    bool refreshesItems;
    bool postsGeneral;
};

// Clicks each switch and checks its key and the notifications it posts.
template <class Fixture>
void checkSwitches(Fixture& f, const char* notification, std::initializer_list<SwitchCase> cases)
{
    for (const SwitchCase& s : cases) {
        SCOPED_TRACE(s.key);
        f.posts.clear();
        auto* box = f.template find<QCheckBox>(s.key);
        ASSERT_NE(box, nullptr);
        box->click();
        EXPECT_EQ(f.store.boolForKey(s.key), box->isChecked());
        ASSERT_EQ(f.posts.size(), s.postsGeneral ? 2U : 1U);
        EXPECT_EQ(f.posts[0].name, QLatin1String(notification));
        EXPECT_EQ(f.posts[0].userInfo.value(NotifKey::ModuleItemRefreshNow).toBool(), s.refreshesItems);
        if (s.postsGeneral) {
            EXPECT_EQ(f.posts[1].name, QLatin1String("GeneralModuleNotif"));
        }
    }
}

} // namespace

TEST(MemoryTab, EachControlStoresItsKeyAndPostsTheMemoryNotification)
{
    ModuleDefaults defaults = memoryPictureDefaults(4 | 8);
    defaults.set(Memory_UpdateInterval, qint64{5});
    TabFixture<MemoryTabViewController> f(ModuleId::Memory, defaults, [](SettingsStore& s, PrefNotificationCenter& c) {
        return new MemoryTabViewController(nullptr, s, c);
    });
    ASSERT_TRUE(f.posts.empty()) << "showing the settings is no change";
    ASSERT_EQ(f.store.values, f.shown);

    EXPECT_EQ(f.find<QSlider>(Memory_GraphWidth)->value(), 3);
    f.find<QSlider>(Memory_GraphWidth)->setValue(6);
    EXPECT_EQ(f.store.integerForKey(Memory_GraphWidth), 60);
    f.find<QSlider>(Memory_UpdateInterval)->setValue(9);
    EXPECT_EQ(f.store.integerForKey(Memory_UpdateInterval), 9);
    auto* unit = f.find<QComboBox>(Memory_Unit);
    EXPECT_EQ(unit->currentIndex(), 0);
    unit->setCurrentIndex(2);
    EXPECT_EQ(f.store.integerForKey(Memory_Unit), 3);
    ASSERT_EQ(f.posts.size(), 3U);
    EXPECT_EQ(f.posts.back().name, QLatin1String("MemoryModuleNotif"));

    checkSwitches(f, "MemoryModuleNotif",
                  {{Memory_TradMemoryInfo, false, false},
                   {Memory_Text_WithLongLabel, false, false},
                   {Memory_DetailText_WithLongLabel, false, false},
                   {Memory_ShowMyLabel, false, true},
                   {Memory_EnaMenu_Amon, true, false},
                   {Memory_EnaMenu_Cnsl, true, false},
                   {Memory_EnaMenu_Tmnl, true, false}});

    auto* list = f.find<ElementOrderList>(MemoryItemSortArray);
    ASSERT_EQ(list->count(), 5);
    list->item(4)->setCheckState(Qt::Checked);
    EXPECT_TRUE(f.store.boolForKey(Memory_Display_DetailText));
    list->moveEntry(4, 0);
    EXPECT_EQ(f.store.arrayForKey(MemoryItemSortArray), (QVariantList{5, 1, 2, 3, 4}));
}

TEST(MemoryTab, PreviewFollowsChangesAtOnce)
{
    const double height = TvlClasses::retRootMenuHeight();
    ModuleDefaults settings = memoryPictureDefaults(4 | 8);
    TabFixture<MemoryTabViewController> f(ModuleId::Memory, settings, [](SettingsStore& s, PrefNotificationCenter& c) {
        return new MemoryTabViewController(nullptr, s, c);
    });
    EXPECT_DOUBLE_EQ(
        f.previewWidth("MemoryPreview"),
        memoryBarWidth(memoryPictureSettings(settings), memoryTextWidths(memoryPictureSettings(settings), 0), height));

    InfoDict info;
    info.setHistory(moduleIndex(ModuleId::Memory),
                    historyOf<MemorySample>({{100, 300, 200, 250, 0, 0, -1, -1, 350, 150}}));
    f.tab->setLiveHistory(info);
    f.find<ElementOrderList>(MemoryItemSortArray)->item(0)->setCheckState(Qt::Checked);
    const MemoryPictureSettings stored =
        memoryPictureSettings(PrefFunctions::loadModuleDefaults(ModuleId::Memory, f.store, f.theme));
    EXPECT_TRUE(stored.graph);
    EXPECT_DOUBLE_EQ(f.previewWidth("MemoryPreview"), memoryBarWidth(stored, memoryTextWidths(stored, 0), height));
}

TEST(NetworkTab, EachControlStoresItsKeyAndPostsTheNetworkNotification)
{
    TabFixture<NetworkTabViewController> f(
        ModuleId::Network, networkPictureDefaults(4 | 8),
        [](SettingsStore& s, PrefNotificationCenter& c) { return new NetworkTabViewController(s, c); });
    ASSERT_TRUE(f.posts.empty());

    f.find<QSlider>(Network_Limen_Base)->setValue(25);
    EXPECT_EQ(f.store.integerForKey(Network_Limen_Base), 25);
    f.find<QSlider>(Network_GraphWidth)->setValue(4);
    EXPECT_EQ(f.store.integerForKey(Network_GraphWidth), 40);
    f.find<QSlider>(Network_UpdateInterval)->setValue(3);
    EXPECT_EQ(f.store.integerForKey(Network_UpdateInterval), 3);
    const struct {
        const char* key;
        int index;
    } popups[] = {{Network_UdLabel_Mode, 3}, {Network_Graph_Mode, 4}, {Network_Text_Mode, 1}};
    for (const auto& p : popups) {
        f.find<QComboBox>(p.key)->setCurrentIndex(p.index);
        EXPECT_EQ(f.store.integerForKey(p.key), p.index + 1) << p.key;
    }
    ASSERT_EQ(f.posts.size(), 6U);
    EXPECT_EQ(f.posts.back().name, QLatin1String("NetworkModuleNotif"));

    checkSwitches(f, "NetworkModuleNotif",
                  {{Network_ShowAllNic, true, false},
                   {Network_ShowMyLabel, false, true},
                   {Network_EnaMenu_Amon, true, false},
                   {Network_EnaMenu_Cnsl, true, false},
                   {Network_EnaMenu_Tmnl, true, false}});
}

TEST(NetworkTab, PreviewTakesTheNewLabelsWidthBeforeTheSettingsComeBack)
{
    TabFixture<NetworkTabViewController> f(
        ModuleId::Network, networkPictureDefaults(1 | 8),
        [](SettingsStore& s, PrefNotificationCenter& c) { return new NetworkTabViewController(s, c); });
    const double shortLabels = f.previewWidth("NetworkPreview");
    EXPECT_DOUBLE_EQ(shortLabels, networkBarWidth(networkSettings(1 | 8)));
    f.find<QComboBox>(Network_UdLabel_Mode)->setCurrentIndex(3); // "Send" / "Receive"
    EXPECT_GT(f.previewWidth("NetworkPreview"), shortLabels);
}
