// Helper of the end-to-end tests and of tools/screenshots.sh, run on a virtual X display: grabs the
// screen, or a part of it, into a PNG file, or answers through its exit status whether a tray host
// is running there.
#include <QApplication>
#include <QScreen>
#include <QSystemTrayIcon>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments[1] == QLatin1String("grab"))
        return QGuiApplication::primaryScreen()->grabWindow(0).save(arguments[2], "PNG") ? 0 : 1;
    // grab FILE X Y WIDTH HEIGHT: only that part of the screen.
    if (arguments.size() == 7 && arguments[1] == QLatin1String("grab")) {
        int area[4] = {};
        for (int i = 0; i < 4; ++i) {
            bool ok = false;
            area[i] = arguments[3 + i].toInt(&ok);
            if (!ok)
                return 2;
        }
        const QPixmap part = QGuiApplication::primaryScreen()->grabWindow(0, area[0], area[1], area[2], area[3]);
        return part.save(arguments[2], "PNG") ? 0 : 1;
    }
    if (arguments.size() == 2 && arguments[1] == QLatin1String("tray"))
        return QSystemTrayIcon::isSystemTrayAvailable() ? 0 : 1;
    return 2;
}
