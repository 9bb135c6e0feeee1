// A hook for end-to-end tests where no input can be driven from outside (a headless Wayland
// compositor): off unless the environment asks for it.
#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>

class QCoreApplication;
class QWindow;

// Tells on standard error when the compositor shows one of the windows ("window shown: <class>
// <width>x<height>"), and, once the bar window is shown, presses its first item as a click would,
// so that its menu opens ("menu opened").
class WindowProbe final : public QObject {
    Q_OBJECT
public:
    static constexpr const char* kEnvironmentVariable = "TARVEL_WINDOW_PROBE";

    // Installs a probe on the application when the environment variable is set.
    static void installIfAsked(QCoreApplication& app);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit WindowProbe(QObject* parent);
    void windowShown(QWindow* window);
    // Presses the first item that has a picture and a menu; tries again until one has.
    void pressFirstItem();

    QSet<QWindow*> shown_;
    bool pressScheduled_ = false;
};
