// The CPU tab: each control writes its key, saves and posts "CpuModuleNotif"; the preview is
// drawn by the status item's own picture code.
#include "modules/cpu/cpu_tab_view_controller.h"

#include "modules/cpu/cpu_bar_width.h"
#include "modules/cpu/cpu_tab_elements.h"
#include "modules/cpu/image_cpu_bar.h"
#include "preferences/element_order_list.h"
#include "preferences/picture_preview.h"
#include "preferences/pref_slider_handlers.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"
#include "toolkit/menu_geometry.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>

using namespace PrefKey;

namespace {

int graphSliderPosition(qint64 storedWidth)
{
    // The first-run width of 3 is below the slider's first step; it shows there until moved.
    const auto tens = static_cast<int>((storedWidth + 5) / 10);
    return std::clamp(tens, CpuTabViewController::kGraphSliderMin, CpuTabViewController::kGraphSliderMax);
}

} // namespace

CpuTabViewController::CpuTabViewController(SettingsStore& store, PrefNotificationCenter& center, QWidget* parent)
    : PreferenceTab(ModuleId::Cpu, store, center, parent)
{
    auto* previewBox = new QGroupBox(localized("Preview"), this);
    preview_ = new PicturePreview(previewBox);
    preview_->setObjectName(QStringLiteral("CpuPreview"));
    (new QVBoxLayout(previewBox))->addWidget(preview_);

    auto* columns = new QHBoxLayout();
    columns->addWidget(buildElements());
    columns->addWidget(buildDisplay(), 1);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(previewBox);
    layout->addLayout(columns);
    layout->addWidget(buildMenuItems());
    layout->addStretch(1);
    redrawPreview();
}

QWidget* CpuTabViewController::buildElements()
{
    auto* box = new QGroupBox(localized("Elements"), this);
    auto* layout = new QVBoxLayout(box);
    elements_ = new ElementOrderList(box);
    elements_->setObjectName(QLatin1String(CpuItemSortArray));
    layout->addWidget(elements_);
    auto* hint = new QLabel(localized("Drag an element to change its place in the menu bar."), box);
    hint->setWordWrap(true);
    layout->addWidget(hint);
    layout->addStretch(1);
    connect(elements_, &ElementOrderList::entrySwitched, this, &CpuTabViewController::elementSwitched);
    connect(elements_, &ElementOrderList::orderChanged, this, &CpuTabViewController::orderChanged);
    return box;
}

QWidget* CpuTabViewController::buildDisplay()
{
    auto* box = new QGroupBox(localized("Display"), this);
    auto* form = new QFormLayout(box);
    graphSlider_ = addSlider(form, Cpu_GraphWidth, graphLabel_, kGraphSliderMin, kGraphSliderMax);
    connect(graphSlider_, &QSlider::valueChanged, this, &CpuTabViewController::graphSliderChanged);
    // While dragging, only the label and the preview follow; the width is stored on release.
    connect(graphSlider_, &QSlider::sliderMoved, this, [this](int value) {
        graphLabel_->setText(PrefFunctions::graphSliderText(value * 10L));
        changes_.insert(QLatin1String(Cpu_GraphWidth), qint64{value} * 10);
        redrawPreview();
    });
    intervalSlider_ = addSlider(form, Cpu_UpdateInterval, intervalLabel_, kIntervalSliderMin, kIntervalSliderMax);
    intervalSlider_->setTickInterval(5);
    connect(intervalSlider_, &QSlider::valueChanged, this, &CpuTabViewController::intervalSliderChanged);
    connect(intervalSlider_, &QSlider::sliderMoved, this,
            [this](int value) { intervalLabel_->setText(PrefFunctions::updateSliderText(value)); });

    addSwitch(form, Cpu_AverageMultiProcessors, "Average multiple processors");
    addSwitch(form, Cpu_Text_DisplayAverage, "Show user and system as one figure");
    QCheckBox* line = addSwitch(form, CPU_GraphAsLine, "Draw the graph as a line");
    boldLine_ = addSwitch(form, CPU_LineAsBold, "Heavy line");
    connect(line, &QCheckBox::toggled, boldLine_, &QWidget::setEnabled);
    addSwitch(form, Cpu_ShowMyLabel, "Show the CPU label");
    return box;
}

QWidget* CpuTabViewController::buildMenuItems()
{
    auto* box = new QGroupBox(localized("Menu items"), this);
    auto* form = new QFormLayout(box);
    // These are menu entries: the menu is rebuilt, not just the picture redrawn.
    const QVariantMap refreshItems{{QLatin1String(NotifKey::ModuleItemRefreshNow), true}};
    addSwitch(form, CPU_EnaMenu_Amon, "Open Activity Monitor", refreshItems);
    addSwitch(form, CPU_EnaMenu_Cnsl, "Open Console", refreshItems);
    addSwitch(form, CPU_EnaMenu_Tmnl, "Open Terminal", refreshItems);
    return box;
}

QCheckBox* CpuTabViewController::addSwitch(QFormLayout* form, const char* key, const char* text,
                                           const QVariantMap& userInfo)
{
    auto* box = new QCheckBox(localized(text));
    box->setObjectName(QLatin1String(key));
    form->addRow(box);
    switches_.emplace_back(key, box);
    connect(box, &QCheckBox::toggled, this, [this, key, userInfo](bool on) { switchChanged(key, on, userInfo); });
    return box;
}

QSlider* CpuTabViewController::addSlider(QFormLayout* form, const char* key, QLabel*& label, int minimum, int maximum)
{
    label = new QLabel();
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(QLatin1String(key));
    slider->setRange(minimum, maximum);
    slider->setPageStep(1);
    slider->setTickPosition(QSlider::TicksBelow);
    slider->setTracking(false);
    form->addRow(label);
    form->addRow(slider);
    return slider;
}

void CpuTabViewController::loadViews()
{
    changes_.clear();
    const ModuleDefaults& d = myDefaults();
    QList<ElementOrderList::Entry> entries;
    for (const qint64 code : cpuTabShownOrder(d.intList(CpuItemSortArray))) {
        const CpuTabElement* element = cpuTabElement(code);
        entries.append({code, localized(element->text), d.boolValue(element->key)});
    }
    elements_->setEntries(entries);

    // Exactly the size of its four rows: there is never anything to scroll to.
    const int frame = 2 * elements_->frameWidth();
    elements_->setFixedSize(elements_->sizeHintForColumn(0) + frame + 8,
                            elements_->sizeHintForRow(0) * elements_->count() + frame);
    // A slider under the user's hand keeps its place; the settings catch up on release.
    if (!graphSlider_->isSliderDown()) {
        graphSlider_->setValue(graphSliderPosition(d.intValue(Cpu_GraphWidth)));
        graphLabel_->setText(PrefFunctions::graphSliderText(static_cast<long>(d.intValue(Cpu_GraphWidth))));
    }
    if (!intervalSlider_->isSliderDown()) {
        const auto interval = static_cast<int>(d.intValue(Cpu_UpdateInterval));
        intervalSlider_->setValue(std::clamp(interval, kIntervalSliderMin, kIntervalSliderMax));
        intervalLabel_->setText(PrefFunctions::updateSliderText(interval));
    }
    for (const auto& [key, box] : switches_)
        box->setChecked(d.boolValue(key));
    boldLine_->setEnabled(d.boolValue(CPU_GraphAsLine));
    redrawPreview();
}

void CpuTabViewController::noteChange(const char* key, const QVariant& value)
{
    changes_.insert(QLatin1String(key), value);
    redrawPreview();
}

void CpuTabViewController::switchChanged(const char* key, bool on, const QVariantMap& userInfo)
{
    if (loading())
        return;
    store().setBool(QLatin1String(key), on);
    noteChange(key, on);
    commit(userInfo);
    // The label switch is stored with the General settings as well as read into the CPU ones:
    // the CPU notification redraws the item, this one keeps the General dictionary in step.
    if (qstrcmp(key, Cpu_ShowMyLabel) == 0)
        postAs(ModuleId::General, {});
}

void CpuTabViewController::elementSwitched(qint64 code, bool on)
{
    // With every element off the module switches itself off and its item leaves the bar.
    if (const CpuTabElement* element = cpuTabElement(code))
        switchChanged(element->key, on, {});
}

void CpuTabViewController::orderChanged(const QList<qint64>& order)
{
    if (loading())
        return;
    QVariantList stored;
    for (const qint64 code : order)
        stored.append(code);
    store().setArray(QLatin1String(CpuItemSortArray), stored);
    noteChange(CpuItemSortArray, stored);
    commit();
}

void CpuTabViewController::graphSliderChanged(int value)
{
    if (loading())
        return;
    PrefFunctions::graphSliderChange(value, store(), graphLabel_, QLatin1String(Cpu_GraphWidth));
    noteChange(Cpu_GraphWidth, qint64{value} * 10);
    commit();
}

void CpuTabViewController::intervalSliderChanged(int value)
{
    if (loading())
        return;
    PrefFunctions::updateSliderChange(value, store(), intervalLabel_, QLatin1String(Cpu_UpdateInterval));
    commit();
}

void CpuTabViewController::setLiveHistory(const InfoDict& info)
{
    if (!info.cpu.exists() || info.cpu.empty() || info.cpu.back().empty())
        return;
    history_ = info.cpu;
    redrawPreview();
}

void CpuTabViewController::redrawPreview()
{
    ModuleDefaults defaults = myDefaults();
    for (auto it = changes_.cbegin(); it != changes_.cend(); ++it)
        defaults.set(it.key(), it.value());
    History<CpuSample> history = history_;
    if (history.empty()) // before the first sample: the elements at 0%, as the bar shows them
        history = History<CpuSample>().appended(
            zeroCpuSample(static_cast<std::size_t>(std::max(1, QThread::idealThreadCount()))));
    const std::size_t cores = history.back().size() - 1;
    const double height = TvlClasses::retRootMenuHeight();
    const CpuPictureSettings settings = cpuPictureSettings(defaults);
    ImageCpuBar bar;
    bar.redrawWithSize(QSizeF(cpuBarWidth(settings, cores, height), height),
                       TvlClasses::retStatusMenuInsets(cpuShownElementCount(settings)), false, true, settings, history);
    preview_->setImage(bar.image(devicePixelRatioF() * PicturePreview::zoom()));
}
