// The VNC tab through its widgets: each change of the host table stores the list and tells the
// module, a bad address is refused with a message, imports append.
#include "modules/module_registry.h"
#include "modules/vnc/vnc_host_table.h"
#include "modules/vnc/vnc_tab_view_controller.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_notification.h"
#include "support/fixture_paths.h"
#include "support/memory_settings_store.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

#include <memory>

using namespace PrefKey;

namespace {

QVariantMap host(const char* name, bool menu)
{
    return {{"name", QString::fromUtf8(name)},
            {"url", QStringLiteral("vnc://%1.local").arg(QString::fromUtf8(name))},
            {"menu", menu}};
}

struct TabUnderTest {
    explicit TabUnderTest(const QVariantList& hosts)
    {
        store.setArray(Vnc_ClientSortArray, hosts);
        AllModuleDefaults all;
        all[moduleIndex(ModuleId::Vnc)].set(Vnc_ClientSortArray, hosts);
        QObject::connect(&center, &PrefNotificationCenter::posted,
                         [this](const PrefNotification& n) { posted.append(n); });
        tab = std::make_unique<VNCTabViewController>(nullptr, store, center);
        tab->setOpener([this](const QString& url) { opened.append(url); });
        tab->setMyDefaults(all, {});
        table = tab->findChild<VncHostTable*>(QStringLiteral("VncHosts"));
        message = tab->findChild<QLabel*>(QStringLiteral("VncMessage"));
    }
    void click(const char* name) { tab->findChild<QPushButton*>(QLatin1String(name))->click(); }
    QStringList storedNames() const
    {
        QStringList names;
        for (const QVariant& record : store.arrayForKey(Vnc_ClientSortArray))
            names << record.toMap().value("name").toString();
        return names;
    }
    QVariantMap storedRecord(int row) const { return store.arrayForKey(Vnc_ClientSortArray).value(row).toMap(); }

    MemorySettingsStore store;
    PrefNotificationCenter center;
    QList<PrefNotification> posted;
    QStringList opened;
    std::unique_ptr<VNCTabViewController> tab;
    VncHostTable* table = nullptr;
    QLabel* message = nullptr;
};

} // namespace

TEST(VncTab, AddDeleteAndReorderStoreTheListAndTellTheModule)
{
    TabUnderTest t({host("alpha", true), host("beta", false), host("gamma", true)});
    ASSERT_NE(t.table, nullptr);
    EXPECT_EQ(t.table->rowCount(), 3);

    t.table->selectRow(0);
    t.click("VncMoveDown");
    EXPECT_EQ(t.storedNames(), (QStringList{"beta", "alpha", "gamma"}));
    EXPECT_EQ(t.table->selectedRow(), 1); // the selection goes with the host
    t.click("VncMoveDown");
    t.click("VncMoveDown"); // already last: nothing to store
    EXPECT_EQ(t.storedNames(), (QStringList{"beta", "gamma", "alpha"}));
    t.click("VncMoveUp");
    EXPECT_EQ(t.storedNames(), (QStringList{"beta", "alpha", "gamma"}));
    ASSERT_EQ(t.posted.size(), 3);
    EXPECT_EQ(t.posted.last().name, QStringLiteral("VNCModuleNotif"));
    EXPECT_EQ(t.store.saves, 3);

    t.click("VncDelete");
    EXPECT_EQ(t.storedNames(), (QStringList{"beta", "gamma"}));
    t.click("VncAdd");
    EXPECT_EQ(t.storedRecord(2), (QVariantMap{{"name", "New Host"}, {"url", "vnc://localhost"}, {"menu", true}}));
    EXPECT_EQ(t.table->rowCount(), 3);

    t.table->selectRow(1);
    t.click("VncConnect");
    EXPECT_EQ(t.opened, (QStringList{"vnc://gamma.local"}));
}

TEST(VncTab, CheckboxAndNameEditsChangeTheirRecordOnly)
{
    TabUnderTest t({host("alpha", true), host("beta", false)});
    t.table->item(0, VncHostTable::MenuColumn)->setCheckState(Qt::Unchecked);
    t.table->item(1, VncHostTable::MenuColumn)->setCheckState(Qt::Checked);
    t.table->item(1, VncHostTable::NameColumn)->setText(QStringLiteral("  Build box "));
    EXPECT_EQ(t.storedRecord(0), (QVariantMap{{"name", "alpha"}, {"url", "vnc://alpha.local"}, {"menu", false}}));
    EXPECT_EQ(t.storedRecord(1), (QVariantMap{{"name", "Build box"}, {"url", "vnc://beta.local"}, {"menu", true}}));
    EXPECT_EQ(t.posted.size(), 3);

    t.table->item(1, VncHostTable::NameColumn)->setText(QStringLiteral(" "));
    EXPECT_TRUE(t.message->isVisibleTo(t.tab.get()));
    EXPECT_EQ(t.table->item(1, VncHostTable::NameColumn)->text(), QStringLiteral("Build box"));
    EXPECT_EQ(t.posted.size(), 3);
}

TEST(VncTab, AddressesAreCheckedAndNormalised)
{
    TabUnderTest t({host("alpha", true)});
    const struct {
        const char* typed;
        const char* stored; // the address kept afterwards
        bool refused;
    } cases[] = {
        {"http://alpha.local", "vnc://alpha.local", true},
        {"alpha.local:5902", "vnc://alpha.local:5902", false},
        {"alpha local", "vnc://alpha.local:5902", true},
        {"vnc://alpha.local:5903", "vnc://alpha.local:5903", false},
    };
    for (const auto& c : cases) {
        const qsizetype postedBefore = t.posted.size();
        t.table->item(0, VncHostTable::AddressColumn)->setText(QString::fromUtf8(c.typed));
        EXPECT_EQ(t.storedRecord(0).value("url").toString(), QString::fromUtf8(c.stored)) << c.typed;
        EXPECT_EQ(t.table->item(0, VncHostTable::AddressColumn)->text(), QString::fromUtf8(c.stored)) << c.typed;
        EXPECT_EQ(t.message->isVisibleTo(t.tab.get()), c.refused) << c.typed;
        if (c.refused) {
            EXPECT_TRUE(t.message->text().contains(QString::fromUtf8(c.typed))) << t.message->text().toStdString();
        }
        EXPECT_EQ(t.posted.size(), postedBefore + (c.refused ? 0 : 1)) << c.typed;
    }
}

TEST(VncTab, ImportsAppendAfterTheStoredHosts)
{
    TabUnderTest t({host("alpha", true)});
    QList<VncHost> found;
    t.tab->setHostImporter([&found] { return found; });
    t.click("VncImportViewers");
    EXPECT_TRUE(t.message->text().contains(QStringLiteral("No VNC hosts")));
    EXPECT_TRUE(t.posted.isEmpty());

    found = {{"alpha", "vnc://alpha.local", true}, {"Office Mac", "vnc://office.example.com:5901", true}};
    t.click("VncImportViewers");
    EXPECT_EQ(t.storedNames(), (QStringList{"alpha", "alpha", "Office Mac"}));
    // Imported hosts carry no menu entry, whatever the importer said.
    EXPECT_EQ(t.storedRecord(1), (QVariantMap{{"name", "alpha"}, {"url", "vnc://alpha.local"}}));
    EXPECT_EQ(t.table->rowCount(), 3);
    EXPECT_EQ(t.posted.size(), 1);

    t.tab->setFolderChooser([] { return QString::fromStdString((projectFixtures() / "vnc" / "vncloc").string()); });
    t.click("VncImportFolder");
    EXPECT_EQ(t.storedNames(), (QStringList{"alpha", "alpha", "Office Mac", "Studio.vncloc"}));
    t.tab->setFolderChooser([] { return QString(); }); // the dialog was cancelled
    t.click("VncImportFolder");
    EXPECT_EQ(t.posted.size(), 2);
}

TEST(VncTab, SwitchesStoreTheirKeyAndToolItemsRebuildTheMenu)
{
    TabUnderTest t({});
    t.tab->findChild<QCheckBox*>(QLatin1String(Vnc_ShowMenu))->setChecked(true);
    EXPECT_TRUE(t.store.boolForKey(Vnc_ShowMenu));
    EXPECT_FALSE(t.posted.last().userInfo.value(NotifKey::ModuleItemRefreshNow).toBool());
    t.tab->findChild<QCheckBox*>(QLatin1String(Vnc_EnaMenu_Tmnl))->setChecked(true);
    EXPECT_TRUE(t.store.boolForKey(Vnc_EnaMenu_Tmnl));
    EXPECT_TRUE(t.posted.last().userInfo.value(NotifKey::ModuleItemRefreshNow).toBool());
    EXPECT_FALSE(t.tab->findChild<QPushButton*>(QStringLiteral("VncDelete"))->isEnabled()); // nothing selected
}
