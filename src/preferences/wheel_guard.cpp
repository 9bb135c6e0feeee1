// Catches wheel events on the application on their way to an unfocused control of the window.
#include "preferences/wheel_guard.h"

#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QScrollBar>
#include <QWheelEvent>
#include <QWidget>

namespace {

bool isSettingControl(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) != nullptr || qobject_cast<const QAbstractSpinBox*>(widget) != nullptr ||
           (qobject_cast<const QAbstractSlider*>(widget) != nullptr &&
            qobject_cast<const QScrollBar*>(widget) == nullptr);
}

} // namespace

WheelGuard::WheelGuard(QWidget* window)
    : QObject(window)
    , window_(window)
{
    // On the application, so controls made after this (tabs are built when first shown) are
    // guarded too; only this window's controls are looked at.
    qApp->installEventFilter(this);
}

void WheelGuard::guard(QWidget* window)
{
    new WheelGuard(window);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != window_)
        return false;
    // The spin box's line edit receives the event first; its box is the control.
    QWidget* control = widget;
    while (control != nullptr && control != window_ && !isSettingControl(control))
        control = control->parentWidget();
    if (control == nullptr || control == window_ || control->hasFocus())
        return false;
    // Handed to the page the control sits on, so it scrolls as it would beside the control.
    for (QWidget* holder = control->parentWidget(); holder != nullptr; holder = holder->parentWidget()) {
        if (auto* page = qobject_cast<QAbstractScrollArea*>(holder)) {
            QCoreApplication::sendEvent(page->viewport(), event);
            break;
        }
    }
    return true;
}
