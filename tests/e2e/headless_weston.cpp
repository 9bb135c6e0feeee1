// A private Wayland compositor for the end-to-end tests: weston's headless backend on a socket
// of its own, in a runtime folder of its own.
#include "headless_weston.h"
#include "server_process.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

HeadlessWeston::HeadlessWeston()
{
    if (!runtime_.isValid())
        return;
    QFile::setPermissions(runtime_.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString name = QStringLiteral("tarvel-test-%1").arg(QCoreApplication::applicationPid());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime_.path());
    env.remove(QStringLiteral("WAYLAND_DISPLAY"));
    env.remove(QStringLiteral("DISPLAY"));
    server_.setProcessEnvironment(env);
    server_.setProcessChannelMode(QProcess::MergedChannels);
    // The screen never blanks, so windows stay exposed however long a test takes.
    server_.start(QStringLiteral("weston"),
                  {QStringLiteral("--backend=headless-backend.so"), QStringLiteral("--socket=") + name,
                   QStringLiteral("--idle-time=0"), QStringLiteral("--width=1024"), QStringLiteral("--height=640")});
    if (!server_.waitForStarted(5000)) {
        failure_ = server_.errorString();
        return;
    }
    const QString path = QDir(runtime_.path()).filePath(name);
    const QDeadlineTimer deadline(15000);
    while (!QFileInfo::exists(path) && server_.state() == QProcess::Running && !deadline.hasExpired())
        QThread::msleep(100);
    if (QFileInfo::exists(path) && server_.state() == QProcess::Running)
        socket_ = name;
    else
        failure_ = QString::fromLocal8Bit(server_.readAll()).right(2000);
}

HeadlessWeston::~HeadlessWeston()
{
    stopServer(server_);
}
