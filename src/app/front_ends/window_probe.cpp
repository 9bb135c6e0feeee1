// A hook for end-to-end tests where no input can be driven from outside (a headless Wayland
// compositor): off unless the environment asks for it.
#include "app/front_ends/window_probe.h"

#include "app/front_ends/bar_item_widget.h"
#include "app/front_ends/bar_window_status_bar.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTextStream>
#include <QTimer>
#include <QWidget>
#include <QWindow>

namespace {

// Long enough for the first cycle's pictures to reach the bar.
constexpr int kPressRetryMs = 500;

QWidget* widgetOf(const QWindow* window)
{
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->windowHandle() == window)
            return widget;
    return nullptr;
}

} // namespace

WindowProbe::WindowProbe(QObject* parent)
    : QObject(parent)
{}

void WindowProbe::installIfAsked(QCoreApplication& app)
{
    if (qEnvironmentVariableIsEmpty(kEnvironmentVariable))
        return;
    app.installEventFilter(new WindowProbe(&app));
}

bool WindowProbe::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Expose) {
        auto* window = qobject_cast<QWindow*>(watched);
        if (window != nullptr && window->isExposed() && !shown_.contains(window)) {
            shown_.insert(window);
            connect(window, &QObject::destroyed, this, [this, window] { shown_.remove(window); });
            windowShown(window);
        }
    } else if (event->type() == QEvent::Hide) {
        // A menu shown again is told of again.
        if (auto* window = qobject_cast<QWindow*>(watched))
            shown_.remove(window);
    }
    return QObject::eventFilter(watched, event);
}

void WindowProbe::windowShown(QWindow* window)
{
    QWidget* widget = widgetOf(window);
    const char* kind = widget != nullptr ? widget->metaObject()->className() : window->metaObject()->className();
    QTextStream err(stderr);
    err << "window shown: " << kind << ' ' << window->width() << 'x' << window->height() << '\n';
    if (qobject_cast<QMenu*>(widget) != nullptr)
        err << "menu opened\n";
    err.flush();
    if (qobject_cast<BarWindowStatusBar*>(widget) != nullptr && !pressScheduled_) {
        pressScheduled_ = true;
        QTimer::singleShot(kPressRetryMs, this, &WindowProbe::pressFirstItem);
    }
}

void WindowProbe::pressFirstItem()
{
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (qobject_cast<BarWindowStatusBar*>(top) == nullptr)
            continue;
        for (BarItemWidget* item : top->findChildren<BarItemWidget*>()) {
            if (item->menu() == nullptr || item->width() == 0)
                continue;
            const QPointF centre = QRectF(item->rect()).center();
            QMouseEvent press(QEvent::MouseButtonPress, centre, item->mapToGlobal(centre), Qt::LeftButton,
                              Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(item, &press);
            QTextStream(stderr) << "pressed: " << item->objectName() << '\n';
            return;
        }
    }
    QTimer::singleShot(kPressRetryMs, this, &WindowProbe::pressFirstItem);
}
