// Labels that the drop-down panels are built of: titles, figures and colour swatches.
#pragma once

#include <QColor>
#include <QPixmap>
#include <Qt>

class QGridLayout;
class QLabel;
class QWidget;

namespace PanelLabels {

// A row title, localised from key, in the muted colour of secondary text.
QLabel* title(QWidget* parent, const char* key);
// Figures in fixed-width digits, so they do not jitter as they change.
QLabel* figure(QWidget* parent, Qt::Alignment alignment);
// A 10 by 10 square of the colour.
QPixmap swatch(const QColor& color);
// The grid a panel lays its rows out on, with the margins every panel keeps inside the menu.
QGridLayout* panelGrid(QWidget* panel, int horizontalSpacing);
// Removes and deletes every row of the grid, for panels that are laid out again.
void clearGrid(QGridLayout* grid);

} // namespace PanelLabels
