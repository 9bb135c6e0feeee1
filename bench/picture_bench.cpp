// Prints the cost of drawing one status-item picture (CPU, Memory, Network) at HiDPI scale, with
// a full history.
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/image_cpu_bar.h"
#include "modules/memory/image_memory_bar.h"
#include "modules/module_prefs.h"
#include "modules/network/image_network_bar.h"
#include "modules/network/network_bar_width.h"
#include "prefs/plist_io.h"
#include "prefs/plist_settings_store.h"
#include "prefs/pref_functions.h"
#include "prefs/pref_keys.h"
#include "prefs/theme_files.h"
#include "storage_picture_bench.h"
#include "toolkit/menu_geometry.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <random>

namespace {

constexpr qreal kScale = 2;
constexpr std::size_t kCores = 8;

// Busy, varied samples, so no column or slice is skipped as empty.
History<CpuSample> fullHistory()
{
    std::mt19937 random(7);
    std::uniform_int_distribution<std::int64_t> ticks(0, 100);
    History<CpuSample> history;
    for (std::size_t i = 0; i < History<CpuSample>::kMaxSamples; ++i) {
        CpuSample sample(kCores + 1);
        for (CpuRecord& record : sample)
            record = {ticks(random), ticks(random), ticks(random), ticks(random)};
        history = history.appended(std::move(sample));
    }
    return history;
}

void measure(const char* label, const ModuleDefaults& defaults, const History<CpuSample>& history, int pictures)
{
    const CpuPictureSettings settings = cpuPictureSettings(defaults);
    const double height = TvlClasses::retRootMenuHeight();
    const double width = cpuBarWidth(settings, kCores, height);

    ImageCpuBar bar;
    bar.redrawWithSize(QSizeF(width, height), TvlClasses::retStatusMenuInsets(cpuShownElementCount(settings)), false,
                       true, settings, history);
    QImage last = bar.image(kScale); // warm-up: fonts and glyph caches
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < pictures; ++i)
        last = bar.image(kScale);
    const auto elapsed = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start);
    std::printf("%-44s %8.1f us/picture  (%gx%g pt, %d pictures)\n", label, elapsed.count() / pictures, width, height,
                pictures);
}

template <class Draw> void time(const char* label, QSizeF size, int pictures, Draw draw)
{
    QImage last = draw(); // warm-up: fonts and glyph caches
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < pictures; ++i)
        last = draw();
    const auto elapsed = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start);
    std::printf("%-44s %8.1f us/picture  (%gx%g pt, %d pictures)\n", label, elapsed.count() / pictures, size.width(),
                size.height(), pictures);
}

// A 16 GiB machine of 4 KiB pages whose use wanders, so every part of every column is drawn.
History<MemorySample> memoryHistory()
{
    std::mt19937 random(11);
    std::uniform_int_distribution<std::int64_t> pages(100000, 900000);
    std::vector<MemorySample> samples;
    for (std::size_t i = 0; i < History<MemorySample>::kMaxSamples; ++i)
        samples.push_back({pages(random), pages(random), pages(random), pages(random), 0, 0, -1, pages(random) / 10,
                           pages(random), pages(random)});
    return History<MemorySample>::fromSamples(std::move(samples));
}

History<NetworkSample> networkHistory()
{
    std::mt19937 random(13);
    std::uniform_int_distribution<std::int64_t> bytes(0, 4 << 20);
    std::vector<NetworkSample> samples{{0, 0, 2.0, {}}};
    while (samples.size() < History<NetworkSample>::kMaxSamples)
        samples.push_back({samples.back().toUp + bytes(random), samples.back().toDw + bytes(random), 2.0, {}});
    return History<NetworkSample>::fromSamples(std::move(samples));
}

void measureMemory(const char* label, const ModuleDefaults& defaults, const History<MemorySample>& history,
                   int pictures)
{
    const MemoryPictureSettings d = memoryPictureSettings(defaults);
    const double height = TvlClasses::retRootMenuHeight();
    const std::int64_t totalPages = 4 << 20;
    const MemoryTextWidths widths = memoryTextWidths(d, totalPages * 4096);
    const QSizeF size(memoryBarWidth(d, widths, height), height);
    ImageMemoryBar bar(4096, totalPages);
    bar.redrawWithSize(size, TvlClasses::retStatusMenuInsets(memoryShownElementCount(d)), false, true, d, history,
                       widths);
    time(label, size, pictures, [&bar] { return bar.image(kScale); });
}

void measureNetwork(const char* label, const ModuleDefaults& defaults, const History<NetworkSample>& history,
                    int pictures)
{
    const NetworkPictureSettings d = networkPictureSettings(defaults);
    const double height = TvlClasses::retRootMenuHeight();
    const QSizeF size(networkBarWidth(d), height);
    ImageNetworkBar bar;
    bar.redrawWithSize(size, TvlClasses::retStatusMenuInsets(networkShownElementCount(d)), false, true, d, history,
                       currentNetworkRates(history));
    time(label, size, pictures, [&bar] { return bar.image(kScale); });
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const int pictures = argc > 1 ? std::max(1, std::atoi(argv[1])) : 500;

    // First-run settings with the bundled light theme, as a new user sees the picture.
    QTemporaryDir folder;
    PlistSettingsStore store(folder.filePath(QStringLiteral("settings.plist")));
    PrefFunctions::initializeCpuPreference(store);
    const QVariantMap theme =
        PlistIo::readDictionary(TvlClasses::retBundleThemePath(QStringLiteral("_light_theme"))).value_or(QVariantMap());
    if (theme.isEmpty())
        std::printf("(bundled theme unreadable: drawing in clear colours)\n");
    const ModuleDefaults factory = PrefFunctions::loadCpuDefaults(store, theme);
    const History<CpuSample> history = fullHistory();

    std::printf("One CPU picture at scale %g, %zu cores, %zu samples of history:\n", kScale, kCores, history.size());
    measure("first-run elements, averaged", factory, history, pictures);

    ModuleDefaults everything = factory;
    for (const char* key : {PrefKey::Cpu_Display_Graph, PrefKey::Cpu_Display_LevelBar, PrefKey::Cpu_Display_CircleMeter,
                            PrefKey::Cpu_Display_Text})
        everything.set(key, true);
    everything.set(PrefKey::Cpu_AverageMultiProcessors, false);
    measure("all four elements per core", everything, history, pictures);
    everything.set(PrefKey::Cpu_GraphWidth, qint64{40});
    measure("all four elements per core, 40-point graph", everything, history, pictures);
    everything.set(PrefKey::CPU_GraphAsLine, true);
    measure("the same with line graphs", everything, history, pictures);
    benchStoragePictures(theme, pictures);

    PrefFunctions::initializeMemoryPreference(store);
    PrefFunctions::initializeNetworkPreference(store);
    const ModuleDefaults memory = PrefFunctions::loadMemoryDefaults(store, theme);
    const History<MemorySample> memoryData = memoryHistory();
    std::printf("\nOne Memory picture, 16 GiB, %zu samples of history:\n", memoryData.size());
    measureMemory("first-run elements", memory, memoryData, pictures);
    ModuleDefaults allMemory = memory;
    for (const char* key :
         {PrefKey::Memory_Display_Graph, PrefKey::Memory_Display_LevelBar, PrefKey::Memory_Display_CircleMeter,
          PrefKey::Memory_Display_Text, PrefKey::Memory_Display_DetailText})
        allMemory.set(key, true);
    measureMemory("all five elements, pressure graph", allMemory, memoryData, pictures);
    allMemory.set(PrefKey::Memory_TradMemoryInfo, true);
    measureMemory("all five elements, stacked page lists", allMemory, memoryData, pictures);

    const ModuleDefaults network = PrefFunctions::loadNetworkDefaults(store, theme);
    const History<NetworkSample> networkData = networkHistory();
    std::printf("\nOne Network picture, %zu samples of history:\n", networkData.size());
    measureNetwork("first-run elements", network, networkData, pictures);
    ModuleDefaults allNetwork = network;
    for (const char* key : {PrefKey::Network_Display_UdLabel, PrefKey::Network_Display_UdCircle,
                            PrefKey::Network_Display_Graph, PrefKey::Network_Display_Text})
        allNetwork.set(key, true);
    measureNetwork("all four elements", allNetwork, networkData, pictures);
    allNetwork.set(PrefKey::Network_Graph_Mode, qint64{5});
    measureNetwork("all four elements, heavy line graph", allNetwork, networkData, pictures);
    return 0;
}
