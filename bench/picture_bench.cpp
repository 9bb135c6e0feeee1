// Prints the cost of drawing one CPU status-item picture at HiDPI scale, with a full history.
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/image_cpu_bar.h"
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
    const double height = TvlClasses::retRootMenuHeight();
    const double width = cpuBarWidth(defaults, kCores, height);
    int shown = 0;
    for (const char* key : {PrefKey::Cpu_Display_Graph, PrefKey::Cpu_Display_LevelBar, PrefKey::Cpu_Display_CircleMeter,
                            PrefKey::Cpu_Display_Text})
        shown += defaults.boolValue(key) ? 1 : 0;

    ImageCpuBar bar;
    bar.redrawWithSize(QSizeF(width, height), TvlClasses::retStatusMenuInsets(shown), false, true, defaults, history);
    QImage last = bar.image(kScale); // warm-up: fonts and glyph caches
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < pictures; ++i)
        last = bar.image(kScale);
    const auto elapsed = std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start);
    std::printf("%-44s %8.1f us/picture  (%gx%g pt, %d pictures)\n", label, elapsed.count() / pictures, width, height,
                pictures);
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
    return 0;
}
