// One row of the Temp and Fan drop-downs, and the rows as lines of text.
#pragma once

#include <QList>
#include <QString>

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

// Texts of the rows, one line each, for the snapshot and the terminal view.
QString sensorPanelText(const QList<SensorPanelRow>& rows, const QString& indent);
