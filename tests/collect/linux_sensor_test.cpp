// The sensor collectors end to end over our own hwmon, thermal and block trees.
#include "collect/linux/linux_sensor_source.h"
#include "collect/linux/linux_smc_source.h"
#include "collect/load_system_information.h"

#include "support/fixture_paths.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <fstream>

namespace {

std::filesystem::path tree(const char* name)
{
    return projectFixtures() / "linux" / name;
}

std::string show(const std::optional<int>& mark)
{
    return mark ? std::to_string(*mark) : "-";
}

// The table as the start-up leaves it: built, then filtered with nothing stored yet.
std::string startUpTable(LoadSystemInformation& info)
{
    const SensorDatDict dict = info.getSensorDatXml("MacBookPro11,1");
    if (!dict.tempData)
        return "-";
    std::string out;
    for (const TempSensorEntry& e : info.getDetailTemp(dict, {}).entries)
        out += e.key.toStdString() + " [" + e.name.toStdString() + "] " + e.group.toStdString() + ' ' + show(e.high) +
               '/' + show(e.critical) + ';';
    return out;
}

std::string show(const SensorSample& sample)
{
    std::string out;
    for (auto it = sample.values.begin(); it != sample.values.end(); ++it)
        out += it.key().toStdString() + '=' + std::to_string(it.value()) + ';';
    return out + " avg " + (sample.average ? std::to_string(*sample.average) : "-");
}

std::string show(const QList<FanEntry>& fans)
{
    std::string out;
    for (const FanEntry& f : fans)
        out += f.name.toStdString() + ' ' + f.speedKey.toStdString() + ' ' + show(f.minimum) + '/' + show(f.maximum) +
               ';';
    return out;
}

std::string show(const QList<SmartReading>& drives)
{
    std::string out;
    for (const SmartReading& d : drives)
        out += '[' + d.model.toStdString() + "] " + std::to_string(d.temperature) + ';';
    return out;
}

// Start-up as the application runs it, then one sample of each kind.
struct Collected {
    std::string table;
    std::string temperatures;
    std::string fanList;
    std::string fans;
};

Collected collect(const std::filesystem::path& root)
{
    LoadSystemInformation info(makeSourceSet(root));
    SensorDatDict dict = info.getSensorDatXml("MacBookPro11,1");
    if (dict.tempData)
        dict.tempData = info.getDetailTemp(dict, {}).entries;
    dict.fanData = info.getFanBase();
    return {startUpTable(info), show(info.getBaseTempNew(dict)), show(dict.fanData), show(info.getFanDetail(dict))};
}

void swapHwmonNumbers(const std::filesystem::path& root)
{
    const std::filesystem::path platform = root / "sys/devices/platform";
    std::filesystem::rename(platform / "coretemp.0/hwmon/hwmon3", platform / "coretemp.0/hwmon/hwmon4");
    std::filesystem::rename(platform / "coretemp.1/hwmon/hwmon4", platform / "coretemp.1/hwmon/hwmon3");
    const std::filesystem::path hwmon = root / "sys/class/hwmon";
    std::filesystem::remove(hwmon / "hwmon3");
    std::filesystem::remove(hwmon / "hwmon4");
    std::filesystem::create_directory_symlink("../../devices/platform/coretemp.1/hwmon/hwmon3", hwmon / "hwmon3");
    std::filesystem::create_directory_symlink("../../devices/platform/coretemp.0/hwmon/hwmon4", hwmon / "hwmon4");
}

void copyTree(const std::filesystem::path& from, const std::filesystem::path& to)
{
    std::filesystem::copy(from, to, std::filesystem::copy_options::recursive | std::filesystem::copy_options::copy_symlinks);
}

} // namespace

TEST(LinuxSensors, TablesSamplesAndFansOfEachTree)
{
    struct Row {
        const char* tree;
        Collected expected;
    } rows[] = {
        {"sensors-desktop",
         {"devices/platform/coretemp.0/temp1 [Coretemp Package Id 0] coretemp 80/100;"
          "devices/platform/coretemp.1/temp1 [Coretemp Package Id 1] coretemp -/-;"
          "devices/platform/coretemp.0/temp2 [Coretemp.0 Core 0] coretemp -/-;"
          "devices/platform/coretemp.1/temp2 [Coretemp.1 Core 0] coretemp -/-;"
          "devices/platform/it87.552/temp1 [It87.552 Temp1] it87.552 -/-;",
          "Coretemp Package Id 0=45;Coretemp Package Id 1=47;Coretemp.0 Core 0=43;Coretemp.1 Core 0=44;"
          "It87.552 Temp1=30; avg 41",
          "(Untitled Fan #1) F0Ac 300/2000;(Untitled Fan #2) F1Ac -/-;", "(Untitled Fan #1)=1200;(Untitled Fan #2)=0; avg 600"}},
        // The SMC's driver: its keys named by the built-in tables, the one no table knows by the
        // chip; the hundred-odd table keys it does not hold are filtered out.
        {"sensors-mac",
         {"TZ9X [Applesmc TZ9X] applesmc -/-;devices/platform/coretemp.0/temp2 [Coretemp Core 0] coretemp -/-;"
          "devices/platform/coretemp.0/temp1 [Coretemp Package Id 0] coretemp 100/100;"
          "TB0T [Enclosure Base 1] applesmc -/-;TG0P [GPU Proximity] applesmc -/-;TC0P [PCPU 1 Proximity] applesmc -/-;",
          "Applesmc TZ9X=41;Coretemp Core 0=53;Coretemp Package Id 0=55;Enclosure Base 1=30;GPU Proximity=48;"
          "PCPU 1 Proximity=52; avg 46",
          "Leftside F0Ac 2000/6200;Rightside F1Ac 2000/6200;", "Leftside=2000;Rightside=0; avg 1000"}},
        // Two NVMe composites told apart by their devices.
        {"sensors-drives",
         {"devices/pci0000:00/0000:00:1c.4/0000:3c:00.0/temp1 [0000:3c:00.0 Composite] nvme -/-;"
          "devices/pci0000:00/0000:00:17.0/ata1/host0/target0:0:0/0:0:0:0/temp1 [Drivetemp Temp1] drivetemp 60/85;"
          "devices/pci0000:00/0000:00:1d.0/0000:3d:00.0/nvme/nvme0/temp2 [Nvme Sensor 1] nvme -/-;"
          "devices/pci0000:00/0000:00:1d.0/0000:3d:00.0/nvme/nvme0/temp1 [Nvme0 Composite] nvme 81/84;",
          "0000:3c:00.0 Composite=45;Drivetemp Temp1=35;Nvme Sensor 1=41;Nvme0 Composite=38; avg 39", "", " avg -"}},
        {"sensors-thermal-only",
         {"devices/virtual/thermal/thermal_zone1/temp [Acpitz] thermal -/-;"
          "devices/virtual/thermal/thermal_zone0/temp [X86_pkg_temp] thermal -/-;",
          "Acpitz=27;X86_pkg_temp=52; avg 39", "", " avg -"}},
        {"sensors-none", {"-", " avg -", "", " avg -"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.tree);
        const Collected got = collect(tree(row.tree));
        EXPECT_EQ(got.table, row.expected.table);
        EXPECT_EQ(got.temperatures, row.expected.temperatures);
        EXPECT_EQ(got.fanList, row.expected.fanList);
        EXPECT_EQ(got.fans, row.expected.fans);
    }
}

TEST(LinuxSensors, TheSmcDriverKeysAreOfferedOnlyWhereTheDriverIs)
{
    LoadSystemInformation mac(makeSourceSet(tree("sensors-mac")));
    const TempDetail detail = mac.getDetailTemp(mac.getSensorDatXml("MacBookPro11,1"), {});
    EXPECT_EQ(detail.entries.size(), 6);
    EXPECT_TRUE(detail.removedTempKeys.contains("TC0E"));
    EXPECT_FALSE(detail.removedTempKeys.contains("TC0P"));

    LoadSystemInformation desktop(makeSourceSet(tree("sensors-desktop")));
    EXPECT_TRUE(desktop.getDetailTemp(desktop.getSensorDatXml("MacBookPro11,1"), {}).removedTempKeys.isEmpty());
}

TEST(LinuxSensors, RenumberedChipsKeepTheirKeysAndNames)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::filesystem::path root = std::filesystem::path(dir.path().toStdString()) / "renumbered";
    copyTree(tree("sensors-desktop"), root);
    swapHwmonNumbers(root);
    const Collected original = collect(tree("sensors-desktop"));
    const Collected renumbered = collect(root);
    EXPECT_EQ(renumbered.table, original.table);
    EXPECT_EQ(renumbered.temperatures, original.temperatures);
}

TEST(LinuxSensors, AReloadedDriverIsFoundAgainUnderItsLastingKey)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const std::filesystem::path root = std::filesystem::path(dir.path().toStdString()) / "reload";
    copyTree(tree("sensors-desktop"), root);
    bool changed = false;
    auto sensors = std::make_shared<LinuxSensorSource>(SysRoot(root), [&changed] { return std::exchange(changed, false); });
    LinuxSmcSource smc(sensors);
    const auto read = [&smc] {
        SMCValue value;
        EXPECT_TRUE(smc.open());
        const int result = smc.readValue("devices/platform/coretemp.0/temp2", value);
        smc.close();
        return result == 0 ? static_cast<int>(value.bytes[0]) : -1;
    };
    EXPECT_EQ(read(), 43);

    // The driver goes and comes back as hwmon7, with its files anew.
    const std::filesystem::path old = root / "sys/devices/platform/coretemp.0/hwmon/hwmon3";
    const std::filesystem::path fresh = root / "sys/devices/platform/coretemp.0/hwmon/hwmon7";
    copyTree(old, fresh);
    std::filesystem::remove_all(old);
    std::filesystem::remove(root / "sys/class/hwmon/hwmon3");
    std::filesystem::create_directory_symlink("../../devices/platform/coretemp.0/hwmon/hwmon7",
                                              root / "sys/class/hwmon/hwmon7");
    std::ofstream(fresh / "temp2_input") << "51000\n";
    changed = true;
    EXPECT_EQ(read(), 51);
}

TEST(LinuxSensors, DrivesMatchedToTheirChipsAndModels)
{
    LoadSystemInformation info(makeSourceSet(tree("sensors-drives")));
    // The optical drive and the loop device are no drives; the virtual disk names no model; the
    // second SATA disk has no chip and below a tree its device is not asked.
    EXPECT_EQ(show(info.getSmartTemp(false)),
              "[Samsung SSD 970 EVO Plus 500GB] 38;[WD Blue SN570 1TB] 45;[Samsung SSD 860] 35;[WDC WD40EFRX-68N] 0;");
    EXPECT_EQ(show(info.getSmartTemp(true)),
              "[Samsung SSD 970 EVO Plus 500GB] 0;[WD Blue SN570 1TB] 0;[Samsung SSD 860] 0;[WDC WD40EFRX-68N] 0;");
    EXPECT_EQ(show(info.getSmartDetailTemp(false)),
              "[---] 0;[Samsung SSD 970 EVO Plus 500GB] 38;[WD Blue SN570 1TB] 45;[Samsung SSD 860] 35;"
              "[WDC WD40EFRX-68N] 0;");
}

TEST(LinuxSensors, NothingToReadGivesEmptyResults)
{
    for (const std::filesystem::path& root : {tree("sensors-none"), tree("does-not-exist")}) {
        SCOPED_TRACE(root.string());
        LoadSystemInformation info(makeSourceSet(root));
        const SensorDatDict dict = info.getSensorDatXml("MacBookPro11,1");
        EXPECT_FALSE(dict.tempData);
        EXPECT_TRUE(info.getDetailTemp(dict, {}).entries.isEmpty());
        EXPECT_TRUE(info.getBaseTempNew(dict).empty());
        EXPECT_TRUE(info.getFanBase().isEmpty());
        EXPECT_TRUE(info.getFanDetail(dict).empty());
        EXPECT_TRUE(info.getSmartTemp(false).isEmpty());
        EXPECT_TRUE(info.getSmartDetailTemp(true).isEmpty());
    }
}
