// Keeps the mouse wheel from changing a setting by accident while the user scrolls the page.
#pragma once

#include <QObject>

class QWidget;

// Over a pop-up, number box or slider that does not have the keyboard focus, the wheel scrolls
// what holds it instead; once the control was clicked or tabbed to, the wheel changes it as usual.
class WheelGuard final : public QObject {
    Q_OBJECT
public:
    // Guards every such control inside window (also those added later), for window's lifetime.
    static void guard(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WheelGuard(QWidget* window);
    QWidget* window_;
};
