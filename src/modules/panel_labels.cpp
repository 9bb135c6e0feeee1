// Panel labels in the menu's font, figures in the system's fixed-pitch face.
#include "modules/panel_labels.h"

#include "toolkit/localization.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>

namespace PanelLabels {

QLabel* title(QWidget* parent, const char* key)
{
    auto* label = new QLabel(Tarvel::localized(key), parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

QLabel* figure(QWidget* parent, Qt::Alignment alignment)
{
    auto* label = new QLabel(parent);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(parent->font().pointSizeF());
    label->setFont(font);
    label->setAlignment(alignment | Qt::AlignVCenter);
    return label;
}

QPixmap swatch(const QColor& color)
{
    QPixmap pixmap(10, 10);
    pixmap.fill(color);
    return pixmap;
}

QGridLayout* panelGrid(QWidget* panel, int horizontalSpacing)
{
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(14, 6, 14, 8);
    grid->setHorizontalSpacing(horizontalSpacing);
    return grid;
}

void clearGrid(QGridLayout* grid)
{
    while (QLayoutItem* item = grid->takeAt(0)) {
        delete item->widget();
        delete item;
    }
}

} // namespace PanelLabels
