// The drop-down panel of the Temp and Fan menus: a heading per chip, a row per sensor or fan.
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

class QGridLayout;
class QLabel;

struct SensorPanelRow {
    enum class Kind {
        Heading, // a chip's or a section's name, across the panel
        Reading, // a name, its figure and the marks the chip gives
        Note,    // a sentence across the panel, such as that nothing was found
    };
    Kind kind = Kind::Reading;
    QString name;
    QString value;
    QString marks;

    bool operator==(const SensorPanelRow&) const = default;
};

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

// Texts of the rows, one line each, for the snapshot and the terminal view.
QString sensorPanelText(const QList<SensorPanelRow>& rows, const QString& indent);
