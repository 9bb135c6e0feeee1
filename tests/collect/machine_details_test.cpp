// Machine names, processor brand and graphics processors from small trees and captured text.
#include "collect/cpu_brand.h"
#include "collect/linux/cpu_architecture_parser.h"
#include "collect/linux/linux_machine_source.h"
#include "collect/load_system_information.h"
#include "collect/machine_details.h"

#include "support/fixture_paths.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {
std::filesystem::path tree(const char* name)
{
    return projectFixtures() / "linux" / name;
}
} // namespace

TEST(CpuBrand, CleaningKeepsTheModelAndClockOfRealModelNames)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Intel(R) Core(TM) i7-4770HQ CPU @ 2.20GHz", "Intel Core i7-4770HQ 2.20GHz"},
        {"Intel(R) Xeon(R) CPU E5-2680 v4 @ 2.40GHz", "Intel Xeon E5-2680 v4 2.40GHz"},
        {"  Intel(R) Celeron(R) CPU  N3350  @ 1.10GHz\n", "Intel Celeron N3350 1.10GHz"},
        {"AMD Ryzen 7 5800X 8-Core Processor  ", "AMD Ryzen 7 5800X 8-Core Processor"},
        {"ARMv7 Processor rev 4 (v7l)", "ARMv7 Processor rev 4 (v7l)"},
    };
    for (const auto& [raw, clean] : cases)
        EXPECT_EQ(cleanBrandName(QString::fromLatin1(raw)), QString::fromLatin1(clean)) << raw;
}

TEST(CpuBrand, RareNameTruncatesToWholeUnitsAndPadsToTwoDigits)
{
    EXPECT_EQ(formatRareName("x86_64", 2600000000u), "x86_64 02GHz");
    EXPECT_EQ(formatRareName("aarch64", 800000000u), "aarch64 800MHz");
    EXPECT_EQ(formatRareName("x86_64", 1000000000u), "x86_64 1000MHz"); // not above 1 GHz
    EXPECT_EQ(formatRareName("x86_64", 5200000000u), "x86_64 05GHz");   // beyond 32 bits

    LinuxMachineSource laptop{SysRoot(tree("dmi-laptop"))};
    EXPECT_EQ(LoadSystemInformation::cpuGetBrandNameNew(laptop), "Intel Core i7-7600U 2.80GHz");
    EXPECT_EQ(LoadSystemInformation::cpuGetRareNameNew(laptop), "x86_64 03GHz");
    LinuxMachineSource guest{SysRoot(tree("bare-guest"))};
    EXPECT_FALSE(LoadSystemInformation::cpuGetRareNameNew(guest)); // no cpufreq in guests
    LinuxMachineSource board{SysRoot(tree("board-placeholders"))};
    EXPECT_EQ(LoadSystemInformation::cpuGetBrandNameNew(board), "");
}

TEST(CpuArchitecture, EachArchitectureIsKnownByItsOwnFields)
{
    EXPECT_EQ(parseCpuArchitecture("processor\t: 0\nflags\t\t: fpu vme lm sse\n"), "x86_64");
    EXPECT_EQ(parseCpuArchitecture("flags\t\t: fpu vme lme sse\n"), "i686"); // "lme" is not "lm"
    EXPECT_EQ(parseCpuArchitecture("Features\t: fp asimd\nCPU architecture: 8\n"), "aarch64");
    EXPECT_EQ(parseCpuArchitecture("Features\t: half thumb\nCPU architecture: 7\n"), "armv7l");
    EXPECT_EQ(parseCpuArchitecture("hart\t\t: 0\nisa\t\t: rv64imafdc\n"), "riscv64");
    EXPECT_FALSE(parseCpuArchitecture("processor\t: 0\n"));
    EXPECT_TRUE(hasHypervisorFlag("flags\t\t: fpu hypervisor lm\n"));
    EXPECT_FALSE(hasHypervisorFlag("flags\t\t: fpu lm\nbugs\t\t: hypervisor\n"));
}

TEST(MachineNames, EachTreeYieldsTheIdentifierAndNameItImplies)
{
    struct Case {
        const char* tree;
        const char* raw;
        std::optional<const char*> readable;
        bool virtualBoard;
    };
    const Case cases[] = {
        // The readable name sits in the version on these machines.
        {"dmi-laptop", "LENOVO 20HRCTO1WW ThinkPad X1 Carbon 5th", "LENOVO ThinkPad X1 Carbon 5th", false},
        // Template firmware text counts as no firmware; the device tree names the board.
        {"board-placeholders", "Pine64 RockPro64 v2.1", "Pine64 RockPro64 v2.1", false},
        // Only the firmware tells this guest apart: its processor hides the hypervisor flag.
        {"kvm-guest", "QEMU Standard PC (Q35 + ICH9, 2009) pc-q35-8.2", "QEMU Standard PC (Q35 + ICH9, 2009)", true},
        // No firmware strings at all: the architecture is all there is.
        {"bare-guest", "x86_64", std::nullopt, true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.tree);
        LinuxMachineSource machine{SysRoot(tree(c.tree))};
        const MachineFacts facts = machineFacts(machine);
        EXPECT_EQ(facts.rawName, QString::fromUtf8(c.raw));
        EXPECT_EQ(facts.readableName, c.readable ? std::optional(QString::fromUtf8(*c.readable)) : std::nullopt);
        EXPECT_EQ(facts.looksVirtual, c.virtualBoard);
    }
    LinuxMachineSource empty{SysRoot(tree("no-such-tree"))};
    EXPECT_FALSE(machineFacts(empty).rawName);
}

TEST(MachineNames, SharedTree)
{
    const auto shared = sharedProcfsTree();
    if (shared.empty())
        GTEST_SKIP() << "shared fixture tree absent";
    LinuxMachineSource machine{SysRoot(shared)};
    const MachineFacts facts = machineFacts(machine);
    EXPECT_EQ(facts.rawName, "Dell Inc. PowerEdge R6515");
    EXPECT_EQ(facts.readableName, "Dell PowerEdge R6515");
    EXPECT_FALSE(facts.looksVirtual);
    EXPECT_EQ(LoadSystemInformation::cpuGetBrandNameNew(machine), "Intel Core i7-8650U 1.90GHz");
    EXPECT_EQ(LoadSystemInformation::cpuGetRareNameNew(machine), "x86_64 02GHz");
}

TEST(GpuNames, DisplayClassDevicesWithDatabaseNamesAndPublishedMemory)
{
    auto gpus = LoadSystemInformation::getGpuNames(tree("dmi-laptop"));
    ASSERT_TRUE(gpus);
    ASSERT_EQ(gpus->size(), 3u); // the network controller is left out
    std::sort(gpus->begin(), gpus->end(), [](const auto& a, const auto& b) { return a.gpuName < b.gpuName; });

    EXPECT_EQ((*gpus)[0].gpuName, "1002:fff0"); // unknown to the database
    EXPECT_EQ((*gpus)[0].totlStr, "--");

    const GpuRecord& amd = (*gpus)[1];
    EXPECT_TRUE(amd.gpuName.startsWith("Advanced Micro Devices")) << amd.gpuName.toStdString();
    EXPECT_TRUE(amd.gpuName.contains("Navi 21")) << amd.gpuName.toStdString();
    EXPECT_EQ(amd.totlStr, "16368MB");
    EXPECT_EQ(amd.usedStr, "25%");
    EXPECT_EQ(amd.totlLl, 17163091968);
    EXPECT_EQ(amd.freeLl, 17163091968 - 4290772992);

    const GpuRecord& intel = (*gpus)[2];
    EXPECT_TRUE(intel.gpuName.startsWith("Intel")) << intel.gpuName.toStdString();
    EXPECT_EQ(intel.totlStr, "--");
    EXPECT_EQ(intel.usedStr, "--");
    EXPECT_EQ(intel.totlLl, -1);

    const auto none = LoadSystemInformation::getGpuNames(tree("board-placeholders"));
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    EXPECT_FALSE(LoadSystemInformation::getGpuNames(tree("small-machine"))); // no PCI bus
    // An entry whose identity cannot be read is left out; the rest of the bus still counts.
    const auto garbled = LoadSystemInformation::getGpuNames(tree("pci-garbled"));
    ASSERT_TRUE(garbled);
    EXPECT_TRUE(garbled->empty());
}
