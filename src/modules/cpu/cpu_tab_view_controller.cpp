// The CPU tab: each control writes its key, saves and posts "CpuModuleNotif"; the preview is
// drawn by the status item's own picture code.
#include "modules/cpu/cpu_tab_view_controller.h"

#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/image_cpu_bar.h"
#include "preferences/picture_preview.h"
#include "prefs/pref_keys.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QThread>

#include <algorithm>

using namespace PrefKey;

CpuTabViewController::CpuTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent)
    : SampledPictureTab(ModuleId::Cpu,
                        {{1, Cpu_Display_Graph, Tarvel::textKey("Graph")},
                         {2, Cpu_Display_LevelBar, Tarvel::textKey("Level bar")},
                         {3, Cpu_Display_CircleMeter, Tarvel::textKey("Cycle meter")},
                         {4, Cpu_Display_Text, Tarvel::textKey("Text")}},
                        CpuItemSortArray, store, center, parent)
{
    buildFrame("CpuPreview", buildDisplay(), buildMenuItems(CPU_EnaMenu_Amon, CPU_EnaMenu_Cnsl, CPU_EnaMenu_Tmnl));
    redrawPreview();
}

QWidget* CpuTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(Tarvel::localized("Display"), this);
    auto* form = new QFormLayout(box);
    addSlider(form, Cpu_GraphWidth, SliderKind::GraphWidth, kGraphSliderMin, kGraphSliderMax);
    addSlider(form, Cpu_UpdateInterval, SliderKind::Interval, kIntervalSliderMin, kIntervalSliderMax);
    addSwitch(form, Cpu_AverageMultiProcessors, Tarvel::textKey("Average multiple processors"));
    addSwitch(form, Cpu_Text_DisplayAverage, Tarvel::textKey("Show user and system as one figure"));
    QCheckBox* line = addSwitch(form, CPU_GraphAsLine, Tarvel::textKey("Draw the graph as a line"));
    boldLine_ = addSwitch(form, CPU_LineAsBold, Tarvel::textKey("Heavy line"));
    connect(line, &QCheckBox::toggled, boldLine_, &QWidget::setEnabled);
    addLabelSwitch(form, Cpu_ShowMyLabel, Tarvel::textKey("Show the CPU label"));
    return box;
}

void CpuTabViewController::loadViews()
{
    boldLine_->setEnabled(myDefaults().boolValue(CPU_GraphAsLine));
    SampledPictureTab::loadViews();
}

QImage CpuTabViewController::drawPreview(const ModuleDefaults& defaults)
{
    // Before the first sample: every processor of this machine at 0%, as the bar shows them.
    const History<CpuSample> history =
        previewHistory(zeroCpuSample(static_cast<std::size_t>(std::max(1, QThread::idealThreadCount()))));
    const std::size_t cores = history.back().size() - 1;
    const double height = TvlClasses::retRootMenuHeight();
    const CpuPictureSettings settings = cpuPictureSettings(defaults);
    ImageCpuBar bar;
    bar.redrawWithSize(QSizeF(cpuBarWidth(settings, cores, height), height),
                       TvlClasses::retStatusMenuInsets(cpuShownElementCount(settings)), false, true, settings, history);
    return bar.image(devicePixelRatioF() * PicturePreview::zoom());
}
