// The drop-down panel of the Temp and Fan menus: a heading per chip, a row per sensor or fan.
#pragma once

#include "modules/sensor_panel_row.h"

#include <QList>
#include <QWidget>

class QGridLayout;
class QLabel;

class SensorPanel : public QWidget {
    Q_OBJECT
public:
    explicit SensorPanel(QWidget* parent = nullptr);

    // Shows the rows; the grid is laid out again only when their number or kinds changed, so an
    // open menu does not flicker every tick.
    void setRows(const QList<SensorPanelRow>& rows);
    // The next rows are laid out afresh, whatever they are.
    void resetMenuNowCount() { laidOut_.clear(); }
    // The rows as shown, for tests and the snapshot.
    const QList<SensorPanelRow>& rows() const { return rows_; }

private:
    struct Line {
        QLabel* name = nullptr;
        QLabel* value = nullptr;
        QLabel* marks = nullptr;
    };
    void layOut(const QList<SensorPanelRow>& rows);

    QGridLayout* grid_ = nullptr;
    QList<SensorPanelRow::Kind> laidOut_;
    QList<Line> lines_;
    QList<SensorPanelRow> rows_;
};
