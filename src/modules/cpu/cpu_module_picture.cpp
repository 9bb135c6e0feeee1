// The CPU picture: width rule, the bar's picture and words, the in-menu graph.
#include "modules/cpu/cpu_module_picture.h"

#include "collect/load_system_information.h"
#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/cpu_usage_text.h"
#include "prefs/pref_keys.h"
#include "toolkit/menu_geometry.h"

#include <QThread>

#include <algorithm>

using namespace PrefKey;

CpuModulePicture::CpuModulePicture(MenuModuleDelegate* delegate)
    : SampledModulePicture(delegate, ModuleId::Cpu)
{
    // The menu always shows one averaged graph, 400 points wide, in the user's colours.
    mnDefaults.set(Cpu_Display_Graph, true);
    mnDefaults.set(Cpu_Display_LevelBar, false);
    mnDefaults.set(Cpu_Display_CircleMeter, false);
    mnDefaults.set(Cpu_Display_Text, false);
    mnDefaults.set(Cpu_GraphWidth, qint64{400});
    mnDefaults.set(Cpu_AverageMultiProcessors, true);
    mnDefaults.set(Cpu_Text_DisplayAverage, false);
    mnDefaults.set(Cpu_ShowMyLabel, false);
}

std::optional<BarPicture> CpuModulePicture::drawBar(bool highlighted, qreal scale)
{
    if (!settings_.barDrawable())
        return std::nullopt;
    if (resumeArray.empty() || resumeArray.back().empty()) {
        // Before the first sample the picture still shows its elements, at 0%, once per
        // processor the collector counts (those of the tree it reads, not of this machine).
        const auto processors = myDelegate != nullptr
                                    ? myDelegate->collector().processorCount()
                                    : std::optional<std::size_t>(std::max(QThread::idealThreadCount(), 0));
        if (!processors || *processors < 1)
            return std::nullopt;
        resumeArray = History<CpuSample>().appended(zeroCpuSample(*processors));
    }
    const std::size_t cores = resumeArray.back().size() - 1;
    const double height = TvlClasses::retRootMenuHeight();
    const double width = cpuBarWidth(settings_.bar, cores, height);
    imageCpuBar.redrawWithSize(QSizeF(width, height),
                               TvlClasses::retStatusMenuInsets(cpuShownElementCount(settings_.bar)), highlighted, true,
                               settings_.bar, resumeArray);
    return BarPicture{imageCpuBar.image(scale), cpuUsageText(resumeArray.back().back())};
}

QImage CpuModulePicture::menuGraph(const CpuPictureSettings& settings, qreal scale)
{
    imageCpuMenu.redrawWithSize(QSizeF(settings_.menu.graphWidth, kMenuGraphHeight),
                                TvlClasses::retMenuPullDownInsets(), false, true, settings, resumeArray);
    return imageCpuMenu.image(scale);
}
