// Every module's settings: first-run values, working dictionaries, launch flags, repairs.
#include "modules/module_prefs.h"
#include "modules/module_registry.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

using namespace PrefKey;

struct Store {
    QTemporaryDir dir;
    PlistSettingsStore store{dir.filePath(QStringLiteral("s.plist"))};
};

QByteArray png(int w, int h)
{
    QImage image(w, h, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace

TEST(PrefFunctions, FirstRunWritesEveryFactoryValueAndNothingElse)
{
    Store s;
    for (const ModuleSchema* schema : allModuleSchemas())
        PrefFunctions::initializeModulePreference(*schema, s.store);
    EXPECT_EQ(s.store.arrayForKey(TopItemSortArray), (QVariantList{1, 2, 3, 4, 7, 5, 6, 8}));
    EXPECT_EQ(s.store.arrayForKey(CpuItemSortArray), (QVariantList{1, 2, 3, 4}));
    EXPECT_EQ(s.store.integerForKey(Cpu_GraphWidth), 3);
    EXPECT_EQ(s.store.integerForKey(Memory_GraphWidth), 30);
    EXPECT_EQ(s.store.integerForKey(Memory_UpdateInterval), 5);
    EXPECT_TRUE(s.store.boolForKey(Memory_Display_CircleMeter));
    EXPECT_TRUE(s.store.boolForKey(Fan_ShowMyLabel));
    EXPECT_EQ(s.store.stringForKey(Temp_ShowTempOnMenu), QStringLiteral("(Average)"));
    EXPECT_FALSE(s.store.objectForKey(Vnc_ShowMenu).toBool());
    // Keys that only the user sets are not written.
    for (const char* key : {kRebootRegularlyDays, CPU_EnaMenu_Amon, Volume_EnaMenu_Tmnl, Temp_MaxTemp, Fax_MaxRpm,
                            Network_ShowAllNic, Vnc_ClientSortArray})
        EXPECT_FALSE(s.store.objectForKey(key).isValid()) << key;
}

TEST(PrefFunctions, LaunchFlagsFollowTheDisplaySwitches)
{
    Store s;
    for (const ModuleSchema* schema : allModuleSchemas())
        PrefFunctions::initializeModulePreference(*schema, s.store);
    ModuleDefaults general = PrefFunctions::loadGeneralDefaults(s.store, {});
    EXPECT_TRUE(general.boolValue(LaunchCpus));
    EXPECT_TRUE(general.boolValue(LaunchVolume));
    EXPECT_FALSE(general.boolValue(LaunchVNC));

    for (const char* key : {Cpu_Display_Graph, Cpu_Display_Text, Network_Display_Graph, Network_Display_Text})
        s.store.setBool(key, false);
    // The up/down label alone does not make a network picture.
    s.store.setBool(Network_Display_UdLabel, true);
    s.store.setBool(Vnc_ShowMenu, true);
    general = PrefFunctions::loadGeneralDefaults(s.store, {});
    EXPECT_FALSE(general.boolValue(LaunchCpus));
    EXPECT_FALSE(general.boolValue(LaunchNetw));
    EXPECT_TRUE(general.boolValue(LaunchVNC));
    EXPECT_EQ(general.stringValue(PrefName), QStringLiteral("Tarvel"));
}

TEST(PrefFunctions, LoadersReadStoredKeysThemeEntriesAndDerivedWidths)
{
    Store s;
    PrefFunctions::initializeCpuPreference(s.store);
    s.store.setDouble(Cpu_UpdateInterval, 2.9);
    s.store.setString(Cpu_GraphWidth, QStringLiteral("40.5"));
    const QVariantMap theme{{"A01", QVariantList{1.0, 0.0, 0.0, 1.0}},
                            {"A02", QVariantList{1.0, 0.0, 0.0}},
                            {"L01", png(40, 36)},
                            {"O01", png(64, 64)},
                            {"O02", QByteArray("not a png")},
                            {_FontSizeDiff, 2}};
    const ModuleDefaults cpu = PrefFunctions::loadCpuDefaults(s.store, theme);
    EXPECT_EQ(cpu.intValue(Cpu_UpdateInterval), 2);
    EXPECT_EQ(cpu.intValue(Cpu_GraphWidth), 40);
    EXPECT_EQ(cpu.intList(CpuItemSortArray), (QList<qint64>{1, 2, 3, 4}));
    EXPECT_EQ(cpu.color("A01"), QColor(Qt::red));
    EXPECT_EQ(cpu.color("A02").alpha(), 0); // three numbers are no colour
    EXPECT_EQ(cpu.color("A07").alpha(), 0); // missing
    EXPECT_EQ(cpu.picture("L01").size, QSizeF(20, 18));
    EXPECT_EQ(cpu.picture("O01").size, QSizeF(18, 18));
    EXPECT_TRUE(cpu.picture("O02").image.isNull());
    EXPECT_EQ(cpu.stringValue(PrefName), QStringLiteral("CPU"));

    // The combined text is one point larger, so its box is wider.
    const qint64 narrow = cpu.intValue(CpuInnerTextWidth);
    EXPECT_GT(narrow, 0);
    s.store.setBool(Cpu_Text_DisplayAverage, true);
    EXPECT_GT(PrefFunctions::loadCpuDefaults(s.store, theme).intValue(CpuInnerTextWidth), narrow);

    // The General item halves all its pictures but the first icon.
    const ModuleDefaults general =
        PrefFunctions::loadGeneralDefaults(s.store, {{"O01", png(64, 64)}, {"O11", png(64, 64)}});
    EXPECT_EQ(general.picture("O01").size, QSizeF(18, 18));
    EXPECT_EQ(general.picture("O11").size, QSizeF(32, 32));
}

TEST(PrefFunctions, LabelPairsLoseTheirHyphensAndBadModesStayInRange)
{
    Store s;
    PrefFunctions::initializeDiskPreference(s.store);
    s.store.setInteger(Disk_Text_Label, 2);
    s.store.setInteger(Disk_Graph_Label, 99);
    const ModuleDefaults disk = PrefFunctions::loaddiskDefaults(s.store, {});
    EXPECT_EQ(disk.stringList(Disk_Indicator_LabelAry), (QStringList{"", ""}));
    EXPECT_EQ(disk.intValue(DiskInnerIndicatorLabelWidth), 0);
    EXPECT_EQ(disk.stringList(Disk_Text_LabelAry), (QStringList{"R:", "W:"}));
    EXPECT_EQ(disk.stringList(Disk_Graph_LabelAry), (QStringList{"", ""}));
    EXPECT_GT(disk.intValue(DiskInnerTextLabelWidth), 0);

    PrefFunctions::initializeNetworkPreference(s.store);
    s.store.setInteger(Network_UdLabel_Mode, 3);
    EXPECT_EQ(PrefFunctions::loadNetworkDefaults(s.store, {}).stringList(Network_UdLabel_ModeAry),
              (QStringList{"Out", "In"}));
}

TEST(PrefFunctions, MaximaAreRepairedInTheStore)
{
    Store s;
    for (qint64 bad : {59, 101}) {
        EXPECT_EQ(PrefFunctions::checkMaxTemp(s.store, bad), 100);
        EXPECT_EQ(s.store.integerForKey(Temp_MaxTemp), 100);
    }
    for (qint64 good : {60, 100})
        EXPECT_EQ(PrefFunctions::checkMaxTemp(s.store, good), good);
    for (qint64 bad : {1999, 6001}) {
        EXPECT_EQ(PrefFunctions::checkMaxRpm(s.store, bad), 6000);
        EXPECT_EQ(s.store.integerForKey(Fax_MaxRpm), 6000);
    }
    for (qint64 good : {2000, 6000})
        EXPECT_EQ(PrefFunctions::checkMaxRpm(s.store, good), good);

    // Loading Temp and Fan repairs a missing maximum the same way.
    s.store.removeObjectForKey(Temp_MaxTemp);
    EXPECT_EQ(PrefFunctions::loadTempDefaults(s.store, {}).intValue(Temp_MaxTemp), 100);
    s.store.setInteger(Fax_MaxRpm, 3000);
    EXPECT_EQ(PrefFunctions::loadFanDefaults(s.store, {}).intValue(Fax_MaxRpm), 3000);
}

TEST(PrefFunctions, NumbersOutOfRangeAndDamagedOrdersAreRepairedInTheStore)
{
    Store s;
    s.store.setInteger(Cpu_UpdateInterval, -5);
    s.store.setString(Cpu_GraphWidth, QStringLiteral("wide"));
    s.store.setDouble(Network_UpdateInterval, 1e300);
    s.store.setInteger(Network_Limen_Base, 500);
    s.store.setInteger(Network_GraphWidth, 70);
    QVariantList order{9, 3, QStringLiteral("x"), 3, 1};
    for (int i = 0; i < 200000; ++i)
        order.append(i % 10);
    s.store.setArray(TopItemSortArray, order);
    s.store.setArray(CpuItemSortArray, {4, 4, 4});

    const ModuleDefaults cpu = PrefFunctions::loadCpuDefaults(s.store, {});
    const ModuleDefaults network = PrefFunctions::loadNetworkDefaults(s.store, {});
    PrefFunctions::loadGeneralDefaults(s.store, {});

    EXPECT_EQ(cpu.intValue(Cpu_UpdateInterval), 2);
    EXPECT_EQ(cpu.intValue(Cpu_GraphWidth), 3);
    EXPECT_EQ(network.intValue(Network_UpdateInterval), 2);
    EXPECT_EQ(network.intValue(Network_Limen_Base), 1);
    EXPECT_EQ(network.intValue(Network_GraphWidth), 70);
    PlistSettingsStore reread(s.store.path());
    EXPECT_EQ(reread.integerForKey(Cpu_UpdateInterval), 2);
    EXPECT_EQ(reread.arrayForKey(TopItemSortArray), (QVariantList{3, 1, 2, 4, 5, 6, 7, 8}));
    EXPECT_EQ(reread.arrayForKey(CpuItemSortArray), (QVariantList{4}));
}

TEST(PrefFunctions, PiledFontSizeAndHyphens)
{
    EXPECT_EQ(PrefFunctions::calcPiledFontSize(QStringLiteral("88"), 2.9, QString(), 100), 3.0);
    EXPECT_EQ(PrefFunctions::calcPiledFontSize(QStringLiteral("88"), 12, QString(), 0.5), 3.0);
    EXPECT_EQ(PrefFunctions::calcPiledFontSize(QStringLiteral("88"), 9.7, QString(), 1000), 9.0);
    const double fitted = PrefFunctions::calcPiledFontSize(QStringLiteral("8888"), 12, QString(), 20);
    EXPECT_GT(fitted, 3.0);
    EXPECT_LT(fitted, 12.0);

    EXPECT_EQ(PrefFunctions::checkHyphenToNull({"-", "a", "-"}), (QStringList{"", "a", ""}));
    EXPECT_FALSE(PrefFunctions::checkHyphenToNull({}).has_value());
}

TEST(PrefFunctions, TempPileUpShrinksTheFontOnlyWhenTheTextDoesNotFit)
{
    Store s;
    PrefFunctions::initializeTempPreference(s.store);
    ModuleDefaults temp = PrefFunctions::loadTempDefaults(s.store, {});
    EXPECT_TRUE(temp.boolValue(TempInnerPileUp));
    EXPECT_EQ(temp.stringValue(Temp_Unit_ModeStr), QStringLiteral("°C"));

    s.store.setInteger(Temp_GraphWidth, 8);
    temp = PrefFunctions::loadTempDefaults(s.store, {});
    EXPECT_GE(temp.doubleValue(TempInnerPiledFontSizeDbl), 3.0);

    s.store.setBool(Temp_PileUp_TextGraph, false);
    temp = PrefFunctions::loadTempDefaults(s.store, {});
    EXPECT_FALSE(temp.boolValue(TempInnerPileUp));
    EXPECT_EQ(temp.doubleValue(TempInnerPiledFontSizeDbl), -1.0);
}
