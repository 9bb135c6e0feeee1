// The VNC menu: which host rows it lists, how Alt changes them, the open-all item, and what a
// click opens; the stored hosts it reads; the picture its item shows.
#include "modules/status_bar.h"
#include "modules/vnc/vnc_menu_item.h"
#include "modules/vnc/vnc_menu_module.h"
#include "modules/vnc/vnc_sites.h"
#include "prefs/pref_keys.h"

#include <QMenu>
#include <gtest/gtest.h>

#include <memory>
#include <utility>
#include <vector>

using namespace PrefKey;

namespace {

class ImageItem final : public StatusItem {
public:
    explicit ImageItem(QImage* shown)
        : shown_(shown)
    {}
    void setImage(const QImage& image, bool) override { *shown_ = image; }
    void setText(const QString&) override {}
    void setMenu(QMenu*) override {}

private:
    QImage* shown_;
};

class ImageBar final : public StatusBar {
public:
    std::unique_ptr<StatusItem> createItem(const QString&) override { return std::make_unique<ImageItem>(&shown); }
    QImage shown;
};

QVariantMap host(const char* name, bool menu)
{
    return {{"name", QString::fromUtf8(name)},
            {"url", QStringLiteral("vnc://%1.local").arg(QString::fromUtf8(name))},
            {"menu", menu}};
}

QImage filled(QColor colour)
{
    QImage image(36, 36, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

ModuleDefaults vncSettings(const QVariantList& hosts, bool openAll = false)
{
    ModuleDefaults d;
    d.set(PrefName, QStringLiteral("VNC"));
    d.set(Vnc_ClientSortArray, hosts);
    d.set(Vnc_AddMenuOpenAll, openAll);
    for (const char* key : {"O01", "O41", "O42"})
        d.set(key, QVariant::fromValue(ThemePicture{filled(Qt::gray), QSizeF(18, 18)}));
    return d;
}

// A module with a built menu whose Alt key and opener the test holds.
struct MenuUnderTest {
    explicit MenuUnderTest(const ModuleDefaults& settings)
    {
        module.setMyDefaults(settings);
        module.setModifierQuery([this] { return alt ? Qt::AltModifier : Qt::NoModifier; });
        module.setOpener([this](const QStringList& urls) { opened += urls; });
        module.initDrawStatusBar(bar);
    }
    // The rows the host list added: (title, tag), in menu order.
    std::vector<std::pair<QString, int>> rows() const
    {
        std::vector<std::pair<QString, int>> out;
        for (QAction* action : module.menu()->actions()) {
            if (action->data().toInt() >= FirstAddedVncTag)
                out.emplace_back(action->text(), action->data().toInt());
        }
        return out;
    }
    VNC_MenuItem* item(int tag) const
    {
        for (QAction* action : module.menu()->actions()) {
            if (action->data().toInt() == tag)
                return qobject_cast<VNC_MenuItem*>(action);
        }
        return nullptr;
    }
    int separators() const
    {
        int count = 0;
        for (QAction* action : module.menu()->actions())
            count += action->isSeparator() ? 1 : 0;
        return count;
    }

    bool alt = false;
    QStringList opened;
    ImageBar bar;
    VNC_MenuModule module{nullptr};
};

using Rows = std::vector<std::pair<QString, int>>;

} // namespace

TEST(VncMenu, HostRowsFollowTheMenuFlagsAndTheAltKey)
{
    const QVariantList hosts{host("alpha", true), host("beta", false), host("gamma", true)};
    const struct {
        bool alt;
        Rows rows;
    } cases[] = {
        {false, {{"alpha", 301}, {"gamma", 302}}},
        {true, {{"+ alpha", 301}, {"- beta", 302}, {"+ gamma", 303}}},
    };
    for (const auto& c : cases) {
        MenuUnderTest menu(vncSettings(hosts));
        menu.alt = c.alt;
        menu.module.menuWillOpen();
        EXPECT_EQ(menu.rows(), c.rows) << "alt " << c.alt;
        EXPECT_EQ(menu.separators(), 1);
        // The fixed items stay ahead of the hosts.
        EXPECT_EQ(menu.module.menu()->actions().first()->data().toInt(), 100);
    }
}

TEST(VncMenu, RowsAreRebuiltAtEachOpening)
{
    MenuUnderTest menu(vncSettings({host("alpha", true), host("beta", false)}));
    EXPECT_EQ(menu.rows(), (Rows{{"alpha", 301}})); // built with the menu
    menu.alt = true;
    menu.module.menuWillOpen();
    menu.module.menuDidClose();
    menu.alt = false;
    menu.module.setMyDefaults(vncSettings({host("delta", true), host("alpha", true)}));
    menu.module.menuWillOpen();
    EXPECT_EQ(menu.rows(), (Rows{{"delta", 301}, {"alpha", 302}}));
    EXPECT_EQ(menu.separators(), 1);

    menu.module.setMyDefaults(vncSettings({host("alpha", false)}));
    menu.module.menuWillOpen();
    EXPECT_TRUE(menu.rows().empty());
    EXPECT_EQ(menu.separators(), 0); // no hosts, no separator
}

TEST(VncMenu, OpenAllItemNeedsItsSwitchAndTwoHosts)
{
    const struct {
        bool openAll;
        QVariantList hosts;
        bool shown;
    } cases[] = {
        {true, {host("alpha", true)}, false},
        {true, {host("alpha", true), host("beta", false)}, false}, // one of them in the menu
        {true, {host("alpha", true), host("beta", true)}, true},
        {false, {host("alpha", true), host("beta", true), host("gamma", true)}, false},
    };
    for (const auto& c : cases) {
        MenuUnderTest menu(vncSettings(c.hosts, c.openAll));
        menu.module.menuWillOpen();
        const Rows rows = menu.rows();
        ASSERT_FALSE(rows.empty());
        EXPECT_EQ(rows.back().second == OpenAllVncTag, c.shown) << c.hosts.size() << " hosts";
        if (c.shown) {
            EXPECT_EQ(rows.back().first, QStringLiteral("Open All of Servers at Once"));
        }
    }
}

TEST(VncMenu, OpenAllOpensEveryHostRowInMenuOrder)
{
    MenuUnderTest menu(vncSettings({host("gamma", true), host("beta", false), host("alpha", true)}, true));
    menu.module.menuWillOpen();
    menu.module.selectVncMenuItem(menu.item(OpenAllVncTag));
    EXPECT_EQ(menu.opened, (QStringList{"vnc://gamma.local", "vnc://alpha.local"}));

    // With Alt held the hidden host has a row too, and so is opened with the others.
    menu.opened.clear();
    menu.alt = true;
    menu.module.menuWillOpen();
    menu.item(OpenAllVncTag)->trigger();
    EXPECT_EQ(menu.opened, (QStringList{"vnc://gamma.local", "vnc://beta.local", "vnc://alpha.local"}));

    menu.opened.clear();
    const VNC_MenuItem* beta = menu.item(302);
    ASSERT_NE(beta, nullptr);
    EXPECT_EQ(beta->serverName(), QStringLiteral("beta"));
    menu.module.selectVncMenuItem(beta);
    EXPECT_EQ(menu.opened, (QStringList{"vnc://beta.local"}));
}

TEST(VncMenu, StoredHostsNeedANameAndAnAddress)
{
    const QVariantList stored{host("shown", true),
                              host("hidden", false),
                              QVariantMap{{"name", "imported"}, {"url", "vnc://imported.local"}},
                              QVariantMap{{"name", "no address"}, {"menu", true}},
                              QVariantMap{{"url", "vnc://nameless.local"}, {"menu", true}},
                              QStringLiteral("not a record")};
    const struct {
        bool onMenuOnly;
        QStringList names;
    } cases[] = {{true, {"shown"}}, {false, {"shown", "hidden", "imported"}}};
    for (const auto& c : cases) {
        QStringList names;
        for (const VncHost& h : TvlClasses::retVncSite(vncSettings(stored), c.onMenuOnly))
            names << h.name;
        EXPECT_EQ(names, c.names) << "on menu only " << c.onMenuOnly;
    }
    EXPECT_TRUE(TvlClasses::retVncSite(ModuleDefaults(), false).isEmpty());
}

TEST(VncMenu, ItemShowsTheScreenPictureOrTheLabel)
{
    const QImage screen = filled(Qt::blue);
    const QImage label = filled(Qt::red).scaled(24, 44);
    ModuleDefaults settings = vncSettings({});
    settings.set("L08", QVariant::fromValue(ThemePicture{label, QSizeF(12, 22)}));
    {
        MenuUnderTest menu(settings); // a theme without the screen picture
        EXPECT_EQ(menu.bar.shown.pixelColor(0, 0), QColor(Qt::red));
        EXPECT_DOUBLE_EQ(menu.bar.shown.devicePixelRatio(), 2.0);
    }
    settings.set("N03", QVariant::fromValue(ThemePicture{screen, QSizeF(18, 18)}));
    MenuUnderTest menu(settings);
    EXPECT_EQ(menu.bar.shown.pixelColor(0, 0), QColor(Qt::blue));
}
