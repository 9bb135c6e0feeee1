// A virtual X display (Xvfb) for the end-to-end tests, on the first free display number.
#include "virtual_display.h"
#include "server_process.h"

VirtualDisplay::VirtualDisplay(QSize size)
{
    // -displayfd lets the server pick a free number and tell it on our end of its standard output.
    const QString screen = QStringLiteral("%1x%2x24").arg(size.width()).arg(size.height());
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                   screen, QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-br")});
    if (!server_.waitForStarted())
        return;
    while (!server_.canReadLine() && server_.waitForReadyRead(10000)) {
    }
    const QByteArray number = server_.readLine().trimmed();
    if (!number.isEmpty())
        name_ = QLatin1Char(':') + QString::fromLatin1(number);
}

VirtualDisplay::~VirtualDisplay()
{
    stopServer(server_);
}
