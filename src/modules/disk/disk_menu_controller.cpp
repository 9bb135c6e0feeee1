// Fills the Disk panel; the facts are fixed per menu, the figures follow each tick.
#include "modules/disk/disk_menu_controller.h"

#include "modules/disk/disk_menu_rows.h"
#include "modules/panel_labels.h"
#include "toolkit/localization.h"

#include <QLabel>

template <> void Disk_MenuController::loadBaseData(const StoragePictures& pictures, const DiskBaseDict& diskBaseDict)
{
    if (!startBlocks(diskBaseDict.empty(), Tarvel::textKey("No disk found")))
        return;
    for (const auto& [key, disk] : diskBaseDict) {
        QLabel* totals = PanelLabels::figure(this, Qt::AlignLeft);
        totals->setForegroundRole(QPalette::PlaceholderText);
        addBlock(key, pictureLabel(pictures[diskMenuPicture(disk.iconKind)]),
                 {new QLabel(diskTitleText(disk), this), new QLabel(diskFactsText(disk), this),
                  PanelLabels::figure(this, Qt::AlignLeft), totals});
    }
}

template <> void Disk_MenuController::replaceData(const History<DiskSample>& resumeArray)
{
    for (const Block& block : blocks_) {
        block.lines[2]->setText(diskRatesText(resumeArray, block.key));
        block.lines[3]->setText(diskTotalsText(resumeArray, block.key));
    }
}
