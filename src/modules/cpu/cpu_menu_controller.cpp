// Lays out and fills the CPU panel; slow queries run on the panel's own background thread.
#include "modules/cpu/cpu_menu_controller.h"

#include "collect/load_system_information.h"
#include "modules/cpu/cpu_option_texts.h"
#include "modules/cpu/cpu_panel_facts.h"
#include "modules/cpu/cpu_panel_values.h"
#include "modules/panel_labels.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QDesktopServices>
#include <QGraphicsOpacityEffect>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QUrl>
#include <QUrlQuery>

namespace {

constexpr const char* kShareNames[] = {Tarvel::textKey("User"), Tarvel::textKey("System"), Tarvel::textKey("Nice"), Tarvel::textKey("Idle")};
constexpr const char* kVirtualMachine = Tarvel::textKey("(Probably VM)");
constexpr const char* kDefaultSearchAddress = "https://duckduckgo.com/";

void setOpacity(QWidget* widget, double opacity)
{
    auto* effect = qobject_cast<QGraphicsOpacityEffect*>(widget->graphicsEffect());
    if (effect == nullptr) {
        effect = new QGraphicsOpacityEffect(widget);
        widget->setGraphicsEffect(effect);
    }
    effect->setOpacity(opacity);
}

QImage inTextColour(const QImage& picture, const QColor& colour)
{
    QImage shape = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), colour);
    return shape;
}

QPixmap swatch(const QColor& color)
{
    QPixmap pixmap(10, 10);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

CPU_MenuController::CPU_MenuController(LoadSystemInformation& loadInfo, SettingsStore& defaults, QWidget* parent)
    : QWidget(parent)
    , loadInfo_(loadInfo)
    , defaults_(defaults)
{
    pool_.setMaxThreadCount(1);
    auto* grid = PanelLabels::panelGrid(this, 8);
    int row = 0;
    for (std::size_t s = 0; s < 4; ++s) {
        swatches_[s] = new QLabel(this);
        grid->addWidget(swatches_[s], row, 0);
        grid->addWidget(new QLabel(Tarvel::localized(kShareNames[s]), this), row, 1);
        shareLabels_[s] = PanelLabels::figure(this, Qt::AlignRight);
        grid->addWidget(shareLabels_[s], row++, 2);
    }

    machinNameButton = new QPushButton(this);
    machinNameButton->setFlat(true);
    machinNameButton->setStyleSheet(QStringLiteral("text-align: left; padding: 0"));
    connect(machinNameButton, &QPushButton::clicked, this, &CPU_MenuController::machinNameButtonClicked);
    machinImage = new QLabel(this);
    grid->addWidget(machinImage, row, 0);
    grid->addWidget(machinNameButton, row++, 1, 1, 2);
    // Column 0 is a gutter for the swatches and the machine's picture: a title spanning it would
    // widen it and push the share names away from their swatches.
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Cpu Type")), row, 1);
    cpuKindLabel = new QLabel(this);
    grid->addWidget(cpuKindLabel, row++, 2);
    for (QLabel*& gpu : gpuLabels_) {
        gpu = new QLabel(this);
        grid->addWidget(gpu, row++, 2);
    }

    const char* titles[] = {Tarvel::textKey("Uptime Boot/Actv"), nullptr, Tarvel::textKey("Scheduling Stat"), Tarvel::textKey("Load Average"), Tarvel::textKey("Host Name")};
    for (std::size_t line = 0; line < optionLabels_.size(); ++line) {
        if (titles[line] != nullptr)
            grid->addWidget(PanelLabels::title(this, titles[line]), row, 1);
        optionLabels_[line] = line < 2 ? PanelLabels::figure(this, Qt::AlignLeft) : new QLabel(this);
        grid->addWidget(optionLabels_[line], row++, 2);
    }

    // Names in the figures' face too: two faces have two line heights, and the shares would
    // drift below their names line by line.
    processNameLabel = PanelLabels::figure(this, Qt::AlignLeft);
    processNameLabel->setObjectName(QStringLiteral("processNames"));
    processNameLabel->setForegroundRole(QPalette::PlaceholderText);
    processNameLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    processPerLabel = PanelLabels::figure(this, Qt::AlignRight);
    processPerLabel->setObjectName(QStringLiteral("processShares"));
    processPerLabel->setAlignment(Qt::AlignRight | Qt::AlignTop);
    // Room for the whole list from the start: an open menu does not grow when it arrives.
    for (QLabel* label : {processNameLabel, processPerLabel})
        label->setMinimumHeight(label->fontMetrics().lineSpacing() * kProcessRows);
    // A row of its own across the panel: long process names must not widen the share names'
    // column above them.
    auto* processes = new QHBoxLayout();
    processes->setSpacing(grid->horizontalSpacing());
    processes->addWidget(processNameLabel, 1);
    processes->addWidget(processPerLabel);
    grid->addLayout(processes, row, 1, 1, 2);
    grid->setColumnStretch(2, 1);
}

CPU_MenuController::~CPU_MenuController()
{
    pool_.waitForDone();
}

void CPU_MenuController::loadBaseData(const ThemePicture& label)
{
    const QString realName = defaults_.stringForKey(PrefKey::MacRealName);
    const QString rawName = defaults_.stringForKey(PrefKey::MacRawName);
    const bool known = !realName.isEmpty() && realName != QLatin1String(kVirtualMachine);
    machinNameButton->setText(known ? QStringLiteral("%1 / %2").arg(realName, rawName) : rawName);
    machinNameButton->setEnabled(known);
    QFont font = machinNameButton->font();
    font.setUnderline(known);
    machinNameButton->setFont(font);

    // No vendor picture service here: the theme's processor picture stands for the machine, as
    // a shape in the menu's text colour (a dark theme's white picture would vanish on a light
    // menu, and the other way round).
    if (!label.image.isNull())
        machinImage->setPixmap(
            QPixmap::fromImage(inTextColour(label.image, palette().color(QPalette::WindowText)))
                .scaledToHeight(static_cast<int>(label.size.height()) * machinImage->devicePixelRatioF(),
                                Qt::SmoothTransformation));

    cpuKindLabel->setText(cpuKindText(loadInfo_));
    const QStringList gpus = gpuRowTexts(loadInfo_);
    for (std::size_t i = 0; i < gpuLabels_.size(); ++i)
        gpuLabels_[i]->setText(gpus.value(static_cast<qsizetype>(i)));
}

void CPU_MenuController::reloadProcDict()
{
    QVariantMap names = loadInfo_.retProcessDict();
    if (!names.isEmpty())
        procDict = std::move(names);
}

void CPU_MenuController::replaceData(qint64, const CpuPictureSettings& settings, const History<CpuSample>& resumeArray)
{
    const auto shares = cpuPanelShares(resumeArray);
    for (std::size_t s = 0; s < 4; ++s) {
        if (settings.swatches[s].isValid())
            swatches_[s]->setPixmap(swatch(settings.swatches[s]));
        shareLabels_[s]->setText(QStringLiteral("%1%").arg(shares[s]));
        setOpacity(shareLabels_[s], cpuPanelOpacity(shares[s]));
        setOpacity(swatches_[s], cpuPanelOpacity(shares[s]));
    }

    // A scan slower than a tick is not stacked behind itself.
    if (detailsInFlight_)
        return;
    detailsInFlight_ = true;
    pool_.start([this, names = procDict] {
        const QStringList options = cpuGetOptionData(loadInfo_.cpuOptionFigures());
        const QStringList processes =
            loadInfo_.psGetProccessAsKv(QStringLiteral("%cpu"), names, kProcessRows, -1).value_or(QStringList());
        QMetaObject::invokeMethod(
            this, [this, options, processes] { applyDetails(options, processes); }, Qt::QueuedConnection);
    });
}

void CPU_MenuController::applyDetails(const QStringList& options, const QStringList& processes)
{
    detailsInFlight_ = false;
    if (options.size() >= 4) {
        for (std::size_t line = 0; line < optionLabels_.size(); ++line)
            optionLabels_[line]->setText(options.value(static_cast<qsizetype>(line)));
    }
    // The list ends in a line feed, which would count as an eleventh line.
    if (processes.size() == 2) {
        processNameLabel->setText(processes.at(0).trimmed());
        processPerLabel->setText(processes.at(1).trimmed());
    }
    Q_EMIT detailsUpdated();
}

void CPU_MenuController::machinNameButtonClicked()
{
    QString text = machinNameButton->text();
    text.remove(QStringLiteral("/ "));
    const QString address = defaults_.stringForKey(PrefKey::MachineSearchAddress);
    QUrl url(address.isEmpty() ? QString::fromLatin1(kDefaultSearchAddress) : address);
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("q"), text);
    url.setQuery(query);
    QDesktopServices::openUrl(url);
}

QString CPU_MenuController::shareText(int state) const
{
    return shareLabels_.at(static_cast<std::size_t>(state))->text();
}

QString CPU_MenuController::optionText(int row) const
{
    return optionLabels_.at(static_cast<std::size_t>(row))->text();
}

QString CPU_MenuController::processNames() const
{
    return processNameLabel->text();
}

QString CPU_MenuController::machineTitle() const
{
    return machinNameButton->text();
}
