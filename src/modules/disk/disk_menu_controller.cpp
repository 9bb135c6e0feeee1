// Fills the Disk panel; the facts are fixed per menu, the figures follow each tick.
#include "modules/disk/disk_menu_controller.h"

#include "modules/disk/disk_menu_rows.h"
#include "modules/panel_labels.h"

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
    : StoragePanel(parent)
{}

void Disk_MenuController::loadBaseData(const StoragePictures& pictures, const DiskBaseDict& diskBaseDict)
{
    if (!startBlocks(diskBaseDict.empty(), "No disk found"))
        return;
    for (const auto& [key, disk] : diskBaseDict) {
        QLabel* totals = PanelLabels::figure(this, Qt::AlignLeft);
        totals->setForegroundRole(QPalette::PlaceholderText);
        addBlock(key, pictureLabel(this, pictures[diskMenuPicture(disk.iconKind)]),
                 {new QLabel(diskTitleText(disk), this), new QLabel(diskFactsText(disk), this),
                  PanelLabels::figure(this, Qt::AlignLeft), totals});
    }
}

void Disk_MenuController::replaceData(const History<DiskSample>& resumeArray)
{
    for (const Block& block : blocks_) {
        block.lines[2]->setText(diskRatesText(resumeArray, block.key));
        block.lines[3]->setText(diskTotalsText(resumeArray, block.key));
    }
}
