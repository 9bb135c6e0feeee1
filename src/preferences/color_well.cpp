// Colour wells: a swatch over a checkerboard (so alpha shows) and a non-modal dialog.
#include "preferences/color_well.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int kSwatchWidth = 36;
constexpr int kSwatchHeight = 16;

} // namespace

ColorWell::ColorWell(QWidget* parent)
    : QToolButton(parent)
{
    setIconSize(QSize(kSwatchWidth, kSwatchHeight));
    connect(this, &QToolButton::clicked, this, &ColorWell::openDialog);
    paintSwatch();
}

void ColorWell::setColor(const QColor& color)
{
    color_ = color;
    paintSwatch();
    if (dialog_ != nullptr) {
        const QSignalBlocker blocker(dialog_);
        dialog_->setCurrentColor(color);
    }
}

void ColorWell::paintSwatch()
{
    QPixmap swatch(kSwatchWidth, kSwatchHeight);
    QPainter painter(&swatch);
    const int cell = kSwatchHeight / 2;
    for (int y = 0; y < kSwatchHeight; y += cell) {
        for (int x = 0; x < kSwatchWidth; x += cell)
            painter.fillRect(x, y, cell, cell, ((x + y) / cell) % 2 == 0 ? Qt::white : Qt::lightGray);
    }
    painter.fillRect(swatch.rect(), color_);
    painter.setPen(Qt::darkGray);
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(QIcon(swatch));
}

void ColorWell::openDialog()
{
    if (dialog_ == nullptr) {
        dialog_ = new QColorDialog(color_, this);
        dialog_->setOption(QColorDialog::ShowAlphaChannel);
        dialog_->setOption(QColorDialog::NoButtons);
        dialog_->setAttribute(Qt::WA_DeleteOnClose);
        connect(dialog_, &QColorDialog::currentColorChanged, this, [this](const QColor& color) {
            if (!color.isValid() || color == color_)
                return;
            color_ = color;
            paintSwatch();
            Q_EMIT colorChanged(color);
        });
    }
    dialog_->show();
    dialog_->raise();
    dialog_->activateWindow();
}
