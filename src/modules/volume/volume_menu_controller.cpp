// Lays out the Volume panel; the descriptions are fixed per menu, the space follows each tick.
#include "modules/volume/volume_menu_controller.h"

#include "modules/panel_labels.h"
#include "modules/volume/storage_pictures.h"
#include "modules/volume/volume_menu_rows.h"
#include "toolkit/localization.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

#include <algorithm>

namespace {

// The kind pictures at the size the menu shows them.
constexpr double kPictureSize = 36;

QLabel* pictureLabel(QWidget* parent, const ThemePicture& picture)
{
    auto* label = new QLabel(parent);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedWidth(static_cast<int>(kPictureSize));
    if (!picture.image.isNull()) {
        const qreal ratio = parent->devicePixelRatioF();
        QImage image = picture.image.scaled(QSizeF(kPictureSize * ratio, kPictureSize * ratio).toSize(),
                                            Qt::KeepAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
        label->setPixmap(QPixmap::fromImage(image));
    }
    return label;
}

} // namespace

Volume_MenuController::Volume_MenuController(QWidget* parent)
    : QWidget(parent)
{
    grid_ = PanelLabels::panelGrid(this, 8);
    grid_->setVerticalSpacing(2);
    grid_->setColumnStretch(1, 1);
}

void Volume_MenuController::loadBaseData(const ModuleDefaults& myDefaults, const VolumeBaseDict& volumeBaseDict)
{
    PanelLabels::clearGrid(grid_);
    rows_.clear();
    int line = 0;
    if (volumeBaseDict.empty()) {
        grid_->addWidget(new QLabel(localized("No volume mounted"), this), line, 0, 1, 2);
        return;
    }
    for (const auto& [path, volume] : volumeBaseDict) {
        Row row;
        row.path = path;
        const QString key = volumePictureKey(volume.iconKind, volume.bsdName, volume.isRemovable);
        grid_->addWidget(pictureLabel(this, myDefaults.picture(key)), line, 0, 3, 1);
        row.title = new QLabel(volume.volumeName, this);
        QFont bold = row.title->font();
        bold.setBold(true);
        row.title->setFont(bold);
        row.facts = new QLabel(volumeFactsText(path, volume), this);
        row.facts->setForegroundRole(QPalette::PlaceholderText);
        row.usage = new QLabel(this);
        for (QLabel* label : {row.title, row.facts, row.usage})
            grid_->addWidget(label, line++, 1);
        rows_.push_back(row);
    }
}

void Volume_MenuController::replaceData(const History<VolumeSample>& resumeArray)
{
    static const VolumeSample noSample;
    const VolumeSample& newest = resumeArray.empty() ? noSample : resumeArray.back();
    for (const Row& row : rows_)
        row.usage->setText(volumeUsageText(volumeUsageOf(newest, row.path)));
}

QString Volume_MenuController::rowText(int row) const
{
    const Row& r = rows_.at(static_cast<std::size_t>(row));
    return QStringList{r.title->text(), r.facts->text(), r.usage->text()}.join(QLatin1Char('\n'));
}
