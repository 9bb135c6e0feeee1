// Lays out the blocks of the Disk and Volume panels; each panel fills its own lines.
#include "modules/storage_panel.h"

#include "modules/panel_labels.h"
#include "toolkit/localization.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

#include <algorithm>

StoragePanel::StoragePanel(QWidget* parent)
    : QWidget(parent)
{
    grid_ = PanelLabels::panelGrid(this, 8);
    grid_->setVerticalSpacing(2);
    grid_->setColumnStretch(1, 1);
}

bool StoragePanel::startBlocks(bool nothingToList, const char* emptyNotice)
{
    PanelLabels::clearGrid(grid_);
    blocks_.clear();
    nextLine_ = 0;
    if (nothingToList)
        grid_->addWidget(new QLabel(Tarvel::localized(emptyNotice), this), 0, 0, 1, 2);
    return !nothingToList;
}

void StoragePanel::addBlock(const QString& key, QLabel* picture, const QList<QLabel*>& lines)
{
    grid_->addWidget(picture, nextLine_, 0, static_cast<int>(lines.size()), 1);
    QFont bold = lines.at(0)->font();
    bold.setBold(true);
    lines.at(0)->setFont(bold);
    lines.at(1)->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* line : lines)
        grid_->addWidget(line, nextLine_++, 1);
    blocks_.push_back({key, lines});
}

QLabel* StoragePanel::pictureLabel(const ThemePicture& picture, double side)
{
    auto* label = new QLabel(this);
    label->setAlignment(side > 0 ? Qt::AlignCenter : Qt::AlignTop | Qt::AlignHCenter);
    if (side > 0)
        label->setFixedWidth(static_cast<int>(side));
    if (picture.image.isNull())
        return label;
    QImage image = picture.image;
    if (side > 0) {
        const qreal ratio = devicePixelRatioF();
        image =
            image.scaled(QSizeF(side * ratio, side * ratio).toSize(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
    } else {
        image.setDevicePixelRatio(image.width() / std::max(1.0, picture.size.width()));
    }
    label->setPixmap(QPixmap::fromImage(image));
    return label;
}

QString StoragePanel::rowText(int row) const
{
    QStringList lines;
    for (const QLabel* line : blocks_.at(static_cast<std::size_t>(row)).lines)
        lines << line->text();
    return lines.join(QLatin1Char('\n'));
}
