// Helpers of the tests that mount a real file system: running a tool, waiting for rebuilds.
#pragma once

#include <QDeadlineTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QString>
#include <QStringList>

#include <functional>

// Runs a program to its end; true when it exited normally with status 0.
inline bool runTool(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    return process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

// Waits for rebuilds until the condition holds; other mounts on the machine may come first.
inline bool waitForRebuilds(QSignalSpy& rebuilt, const std::function<bool()>& condition)
{
    QDeadlineTimer deadline(10000);
    while (!condition()) {
        if (deadline.hasExpired() || !rebuilt.wait(static_cast<int>(deadline.remainingTime())))
            return condition();
    }
    return true;
}
