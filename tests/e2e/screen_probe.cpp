// Helper of the end-to-end tests, run on the virtual X display: grabs the screen into a PNG file,
// or answers through its exit status whether a tray host is running there.
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
    if (arguments.size() == 2 && arguments[1] == QLatin1String("tray"))
        return QSystemTrayIcon::isSystemTrayAvailable() ? 0 : 1;
    return 2;
}
