// The stored machine names: written once from the facts, kept afterwards, VMware's taken as is.
#include "app/machine_identity.h"
#include "prefs/pref_keys.h"

#include "support/memory_settings_store.h"

#include <gtest/gtest.h>

namespace {
const QString kRaw = QLatin1String(PrefKey::MacRawName);
const QString kReal = QLatin1String(PrefKey::MacRealName);
const QString kImage = QLatin1String(PrefKey::MacImage);

const MachineFacts kLaptop{"LENOVO 20HRCTO1WW ThinkPad X1 Carbon 5th", "LENOVO ThinkPad X1 Carbon 5th", false};
} // namespace

TEST(MachineIdentity, AFirstStartStoresTheIdentifierAndTheReadableOrVirtualName)
{
    MemorySettingsStore store;
    collectMyMacDetail(store, kLaptop);
    EXPECT_EQ(store.values.value(kRaw), *kLaptop.rawName);
    EXPECT_EQ(store.values.value(kReal), *kLaptop.readableName);

    // A hypervisor's board says nothing about the machine underneath, whatever its name.
    store.values.clear();
    collectMyMacDetail(store, {"QEMU Standard PC", "QEMU Standard PC", true});
    EXPECT_EQ(store.values.value(kReal), "(Probably VM)");

    // Without a readable name only the identifier is kept; the name is tried again next time.
    store.values.clear();
    collectMyMacDetail(store, {"x86_64", std::nullopt, false});
    EXPECT_EQ(store.values.value(kRaw), "x86_64");
    EXPECT_FALSE(store.values.contains(kReal));
}

TEST(MachineIdentity, StoredNamesStandExceptForVmware)
{
    MemorySettingsStore store;
    store.values = {{kRaw, "MacBookPro11,1"}, {kReal, "An earlier name"}};
    collectMyMacDetail(store, kLaptop);
    EXPECT_EQ(store.values.value(kRaw), "MacBookPro11,1");
    EXPECT_EQ(store.values.value(kReal), "An earlier name");

    // VMware's identifier is its name; the picture is left to the theme.
    store.values = {{kRaw, "VMware, Inc. VMware Virtual Platform"}, {kReal, "(Probably VM)"}, {kImage, "png"}};
    collectMyMacDetail(store, kLaptop);
    EXPECT_EQ(store.values.value(kReal), "VMware, Inc. VMware Virtual Platform");
    EXPECT_EQ(store.values.value(kImage), "png");

    // Facts that name nothing store nothing, so the next start tries again.
    store.values.clear();
    collectMyMacDetail(store, MachineFacts{});
    EXPECT_TRUE(store.values.isEmpty());
}
