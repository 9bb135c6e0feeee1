// A virtual X display (Xvfb) for the end-to-end tests, on the first free display number.
#pragma once

#include <QProcess>
#include <QSize>
#include <QString>

class VirtualDisplay {
public:
    explicit VirtualDisplay(QSize size);
    ~VirtualDisplay();

    // Empty when the server could not be started.
    QString name() const { return name_; }

private:
    QProcess server_;
    QString name_;
};
