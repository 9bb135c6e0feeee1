// Ends a display server the end-to-end tests started: politely first, then for good.
#pragma once

#include <QProcess>

inline void stopServer(QProcess& server)
{
    if (server.state() == QProcess::NotRunning)
        return;
    server.terminate();
    if (!server.waitForFinished(5000))
        server.kill();
    server.waitForFinished();
}
