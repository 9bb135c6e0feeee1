// A private Wayland compositor for the end-to-end tests: weston's headless backend on a socket
// of its own, in a runtime folder of its own.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

class HeadlessWeston {
public:
    HeadlessWeston();
    ~HeadlessWeston();
    HeadlessWeston(const HeadlessWeston&) = delete;
    HeadlessWeston& operator=(const HeadlessWeston&) = delete;

    // Empty unless the compositor came up and listens on its socket.
    QString socket() const { return socket_; }
    // Why it did not come up: its own last words.
    QString failure() const { return failure_; }
    // The folder that serves as XDG_RUNTIME_DIR (mode 0700), where the socket is.
    QString runtimeDir() const { return runtime_.path(); }

private:
    QTemporaryDir runtime_;
    QProcess server_;
    QString socket_;
    QString failure_;
};
