// Lays out and fills the Memory panel; swap and process scans run on the panel's own thread.
#include "modules/memory/memory_menu_controller.h"

#include "collect/load_system_information.h"
#include "collect/memory_mapping.h"
#include "modules/memory/memory_panel_rows.h"
#include "modules/panel_labels.h"
#include "toolkit/localization.h"
#include "toolkit/value_format.h"

#include <QGridLayout>
#include <QLabel>

Memory_MenuController::Memory_MenuController(LoadSystemInformation& loadInfo, QWidget* parent)
    : QWidget(parent)
    , loadInfo_(loadInfo)
{
    pool_.setMaxThreadCount(1);
    auto* grid = PanelLabels::panelGrid(this, 8);
    int row = 0;
    for (std::size_t r = 0; r < kPartRows; ++r) {
        swatches_[r] = new QLabel(this);
        names_[r] = new QLabel(this);
        sizes_[r] = PanelLabels::figure(this, Qt::AlignRight);
        grid->addWidget(swatches_[r], row, 0);
        grid->addWidget(names_[r], row, 1);
        grid->addWidget(sizes_[r], row++, 2);
    }
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Total")), row, 1);
    totalLabel_ = PanelLabels::figure(this, Qt::AlignRight);
    grid->addWidget(totalLabel_, row++, 2);

    const char* rateTitles[] = {Tarvel::textKey("Page-ins"), Tarvel::textKey("Page-outs")};
    for (std::size_t i = 0; i < pageRates_.size(); ++i) {
        grid->addWidget(PanelLabels::title(this, rateTitles[i]), row, 0, 1, 2);
        pageRates_[i] = PanelLabels::figure(this, Qt::AlignRight);
        grid->addWidget(pageRates_[i], row++, 2);
    }
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Swap Used")), row, 0, 1, 2);
    swapUsedLabel_ = PanelLabels::figure(this, Qt::AlignRight);
    grid->addWidget(swapUsedLabel_, row++, 2);
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Swap Areas")), row, 0, 1, 2);
    swapAreasLabel_ = new QLabel(this);
    swapAreasLabel_->setAlignment(Qt::AlignRight | Qt::AlignTop);
    grid->addWidget(swapAreasLabel_, row++, 2);

    // Names in the figures' face too, so that both columns keep the same line height.
    processNameLabel_ = PanelLabels::figure(this, Qt::AlignLeft);
    processNameLabel_->setForegroundRole(QPalette::PlaceholderText);
    processNameLabel_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    processSizeLabel_ = PanelLabels::figure(this, Qt::AlignRight);
    processSizeLabel_->setAlignment(Qt::AlignRight | Qt::AlignTop);
    // Room for the whole list from the start: an open menu does not grow when it arrives.
    for (QLabel* label : {processNameLabel_, processSizeLabel_})
        label->setMinimumHeight(label->fontMetrics().lineSpacing() * kProcessRows);
    grid->addWidget(processNameLabel_, row, 0, 1, 2);
    grid->addWidget(processSizeLabel_, row, 2);
    grid->setColumnStretch(2, 1);
}

Memory_MenuController::~Memory_MenuController()
{
    pool_.waitForDone();
}

void Memory_MenuController::reloadProcDict()
{
    ProcessDict names = loadInfo_.retProcessDict();
    if (!names.isEmpty())
        procDict_ = std::move(names);
}

void Memory_MenuController::replaceData(double seconds, const MemoryPictureSettings& settings,
                                        const History<MemorySample>& resumeArray, std::size_t pageSize,
                                        std::int64_t totalPages)
{
    const int unit = settings.unit;
    if (!resumeArray.empty()) {
        const auto rows = memoryPanelRows(resumeArray.back(), totalPages, pageSize, settings.traditional, unit);
        for (std::size_t r = 0; r < rows.size() && r < kPartRows; ++r) {
            const MemoryPanelRow& line = rows[r];
            swatches_[r]->setPixmap(line.swatch ? PanelLabels::swatch(settings.partColor(line.part)) : QPixmap());
            names_[r]->setText(Tarvel::localized(memoryPartName(line.part)));
            sizes_[r]->setText(line.size);
        }
        totalLabel_->setText(TvlClasses::calcMemorySize(totalPages * static_cast<std::int64_t>(pageSize), unit));
        pageRates_[0]->setText(memoryPageRateText(resumeArray, MemoryPageIns, seconds));
        pageRates_[1]->setText(memoryPageRateText(resumeArray, MemoryPageOuts, seconds));
    }

    // Swap is one short read of the kernel's list: shown at once, so the menu is sized for it.
    MemorySource* memory = loadInfo_.sources().memory.get();
    const auto areas = memory != nullptr ? memory->swapAreas() : std::nullopt;
    swapUsedLabel_->setText(areas ? swapUsedText(swapUsageFrom(*areas), unit) : QStringLiteral("---"));
    const QStringList areaTexts = areas ? swapAreaTexts(*areas, unit) : QStringList();
    swapAreasLabel_->setText(areaTexts.isEmpty() ? QStringLiteral("---") : areaTexts.join(QLatin1Char('\n')));

    // A scan slower than a tick is not stacked behind itself.
    if (detailsInFlight_)
        return;
    detailsInFlight_ = true;
    pool_.start([this, names = procDict_, unit] {
        const QStringList processes =
            loadInfo_.psGetProccessAsKv(QStringLiteral("rss"), names, kProcessRows, unit).value_or(QStringList());
        QMetaObject::invokeMethod(
            this, [this, processes] { applyDetails(processes); }, Qt::QueuedConnection);
    });
}

void Memory_MenuController::applyDetails(const QStringList& processes)
{
    detailsInFlight_ = false;
    if (processes.size() == 2) {
        processNameLabel_->setText(processes.at(0).trimmed());
        processSizeLabel_->setText(processes.at(1).trimmed());
    }
    Q_EMIT detailsUpdated();
}

QString Memory_MenuController::partText(std::size_t row) const
{
    return names_.at(row)->text() + QLatin1Char(' ') + sizes_.at(row)->text();
}

QString Memory_MenuController::pageRateText(std::size_t which) const
{
    return pageRates_.at(which)->text();
}

QString Memory_MenuController::swapText() const
{
    return swapUsedLabel_->text();
}

QString Memory_MenuController::processNames() const
{
    return processNameLabel_->text();
}
