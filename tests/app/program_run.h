// The built program run to its end: its status and what it wrote.
#pragma once

#include <QProcess>
#include <QStringList>
#include <QTest>
#include <gtest/gtest.h>

struct ProgramRun {
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

// The event loop keeps turning while the program runs, so a server on this thread can answer.
inline ProgramRun runTarvel(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral(TARVEL_EXECUTABLE), arguments);
    EXPECT_TRUE(process.waitForStarted());
    EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 60000)); // a safety net
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}
