// Lays out the sensor rows once per shape and refreshes their texts every tick.
#include "modules/sensor_panel.h"

#include "modules/panel_labels.h"

#include <QGridLayout>
#include <QLabel>

SensorPanel::SensorPanel(QWidget* parent)
    : QWidget(parent)
    , grid_(PanelLabels::panelGrid(this, 10))
{
    grid_->setColumnStretch(1, 1);
}

void SensorPanel::setRows(const QList<SensorPanelRow>& rows)
{
    QList<SensorPanelRow::Kind> kinds;
    kinds.reserve(rows.size());
    for (const SensorPanelRow& row : rows)
        kinds.append(row.kind);
    if (kinds != laidOut_ || kinds.isEmpty())
        layOut(rows);
    for (qsizetype i = 0; i < rows.size() && i < lines_.size(); ++i) {
        const SensorPanelRow& row = rows.at(i);
        const Line& line = lines_.at(i);
        line.name->setText(row.name);
        if (line.value != nullptr)
            line.value->setText(row.value);
        if (line.marks != nullptr)
            line.marks->setText(row.marks);
    }
    rows_ = rows;
    laidOut_ = kinds;
}

void SensorPanel::layOut(const QList<SensorPanelRow>& rows)
{
    PanelLabels::clearGrid(grid_);
    lines_.clear();
    int r = 0;
    for (const SensorPanelRow& row : rows) {
        Line line;
        line.name = new QLabel(this);
        if (row.kind == SensorPanelRow::Kind::Reading) {
            line.value = PanelLabels::figure(this, Qt::AlignRight);
            line.marks = PanelLabels::figure(this, Qt::AlignLeft);
            line.marks->setForegroundRole(QPalette::PlaceholderText);
            grid_->addWidget(line.name, r, 0);
            grid_->addWidget(line.value, r, 1);
            grid_->addWidget(line.marks, r, 2);
        } else {
            if (row.kind == SensorPanelRow::Kind::Heading) {
                QFont bold = line.name->font();
                bold.setBold(true);
                line.name->setFont(bold);
            } else {
                line.name->setForegroundRole(QPalette::PlaceholderText);
            }
            grid_->addWidget(line.name, r, 0, 1, 3);
        }
        lines_.append(line);
        ++r;
    }
}
