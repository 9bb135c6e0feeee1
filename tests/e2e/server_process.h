// Ends a process the end-to-end tests started (a display server, the monitor): politely first,
// then for good.
#pragma once

#include <QProcess>

inline void stopServer(QProcess& server, int graceMs = 5000)
{
    if (server.state() == QProcess::NotRunning)
        return;
    server.terminate();
    if (!server.waitForFinished(graceMs))
        server.kill();
    server.waitForFinished();
}
