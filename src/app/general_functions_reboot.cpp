// A restart that a long-running monitor can ask for itself, to shed any slow growth.
#include "app/general_functions_reboot.h"

#include "app/app_logging.h"
#include "toolkit/program_path.h"

#include <QCoreApplication>
#include <QProcess>

namespace GeneralFunctions {

void rebootMe()
{
    qCInfo(lcApp, "Tarvel 6 reboots...");
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (QProcess::startDetached(Tarvel::programPath(), arguments))
        QCoreApplication::quit();
}

} // namespace GeneralFunctions
