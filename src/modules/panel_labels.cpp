// Panel labels in the menu's font, figures in the system's fixed-pitch face.
#include "modules/panel_labels.h"

#include "toolkit/localization.h"

#include <QFontDatabase>
#include <QLabel>

namespace PanelLabels {

QLabel* title(QWidget* parent, const char* key)
{
    auto* label = new QLabel(localized(key), parent);
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

} // namespace PanelLabels
