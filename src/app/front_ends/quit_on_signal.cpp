// Ends the event loop cleanly on SIGINT (Ctrl-C) or SIGTERM, whichever front end is shown.
#include "app/front_ends/quit_on_signal.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// The one thing a signal handler can reach is process-wide state, so the pipe's write end lives
// here; it is set and cleared only by the single QuitOnSignal instance.
std::atomic<int> signalPipeWriteEnd{-1};

extern "C" void writeSignalByte(int)
{
    const int savedErrno = errno;
    const int fd = signalPipeWriteEnd.load();
    if (fd >= 0) {
        const char byte = 1;
        [[maybe_unused]] const auto written = ::write(fd, &byte, 1);
    }
    errno = savedErrno;
}

void setHandler(int signalNumber, void (*handler)(int))
{
    struct sigaction action {};
    action.sa_handler = handler;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    ::sigaction(signalNumber, &action, nullptr);
}

} // namespace

QuitOnSignal::QuitOnSignal(QObject* parent)
    : QObject(parent)
{
    if (::pipe(pipe_) != 0)
        return;
    for (const int fd : pipe_) {
        ::fcntl(fd, F_SETFD, FD_CLOEXEC);
        ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK);
    }
    signalPipeWriteEnd.store(pipe_[1]);
    notifier_ = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &QuitOnSignal::onSignalByte);
    setHandler(SIGINT, writeSignalByte);
    setHandler(SIGTERM, writeSignalByte);
}

QuitOnSignal::~QuitOnSignal()
{
    if (pipe_[0] < 0)
        return;
    setHandler(SIGINT, SIG_DFL);
    setHandler(SIGTERM, SIG_DFL);
    signalPipeWriteEnd.store(-1);
    delete notifier_;
    ::close(pipe_[0]);
    ::close(pipe_[1]);
}

void QuitOnSignal::onSignalByte()
{
    char bytes[16];
    while (::read(pipe_[0], bytes, sizeof bytes) > 0) {
    }
    QCoreApplication::quit();
}
