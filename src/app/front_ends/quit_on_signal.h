// Ends the event loop cleanly on SIGINT (Ctrl-C) or SIGTERM, whichever front end is shown.
#pragma once

#include <QObject>

class QSocketNotifier;

// A signal handler may do almost nothing, so it only writes a byte into a pipe; the event loop
// reads it and quits from the main thread. One instance at a time: the handlers are process-wide.
class QuitOnSignal final : public QObject {
    Q_OBJECT
public:
    explicit QuitOnSignal(QObject* parent = nullptr);
    ~QuitOnSignal() override;

    // False when the pipe could not be made; the default signal actions stay in place then.
    bool isInstalled() const { return notifier_ != nullptr; }

private:
    void onSignalByte();

    int pipe_[2] = {-1, -1};
    QSocketNotifier* notifier_ = nullptr;
};
