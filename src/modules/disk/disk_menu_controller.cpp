// Lays out the Disk panel; the facts are fixed per menu, the figures follow each tick.
#include "modules/disk/disk_menu_controller.h"

#include "modules/disk/disk_menu_rows.h"
#include "modules/panel_labels.h"
#include "modules/volume/storage_pictures.h"
#include "toolkit/localization.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

#include <algorithm>

namespace {

QLabel* pictureLabel(QWidget* parent, const ThemePicture& picture)
{
    auto* label = new QLabel(parent);
    label->setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    if (!picture.image.isNull()) {
        QImage image = picture.image;
        image.setDevicePixelRatio(image.width() / std::max(1.0, picture.size.width()));
        label->setPixmap(QPixmap::fromImage(image));
    }
    return label;
}

} // namespace

Disk_MenuController::Disk_MenuController(QWidget* parent)
    : QWidget(parent)
{
    grid_ = PanelLabels::panelGrid(this, 8);
    grid_->setVerticalSpacing(2);
    grid_->setColumnStretch(1, 1);
}

void Disk_MenuController::loadBaseData(const ModuleDefaults& myDefaults, const DiskBaseDict& diskBaseDict)
{
    PanelLabels::clearGrid(grid_);
    rows_.clear();
    int line = 0;
    if (diskBaseDict.empty()) {
        grid_->addWidget(new QLabel(localized("No disk found"), this), line, 0, 1, 2);
        return;
    }
    for (const auto& [key, disk] : diskBaseDict) {
        Row row;
        row.key = key;
        grid_->addWidget(pictureLabel(this, myDefaults.picture(diskMenuPictureKey(disk.iconKind))), line, 0, 4, 1);
        row.title = new QLabel(diskTitleText(disk), this);
        QFont bold = row.title->font();
        bold.setBold(true);
        row.title->setFont(bold);
        row.facts = new QLabel(diskFactsText(disk), this);
        row.facts->setForegroundRole(QPalette::PlaceholderText);
        row.rates = PanelLabels::figure(this, Qt::AlignLeft);
        row.totals = PanelLabels::figure(this, Qt::AlignLeft);
        row.totals->setForegroundRole(QPalette::PlaceholderText);
        for (QLabel* label : {row.title, row.facts, row.rates, row.totals})
            grid_->addWidget(label, line++, 1);
        rows_.push_back(row);
    }
}

void Disk_MenuController::replaceData(const History<DiskSample>& resumeArray)
{
    for (const Row& row : rows_) {
        row.rates->setText(diskRatesText(resumeArray, row.key));
        row.totals->setText(diskTotalsText(resumeArray, row.key));
    }
}

QString Disk_MenuController::rowText(int row) const
{
    const Row& r = rows_.at(static_cast<std::size_t>(row));
    return QStringList{r.title->text(), r.facts->text(), r.rates->text(), r.totals->text()}.join(QLatin1Char('\n'));
}
