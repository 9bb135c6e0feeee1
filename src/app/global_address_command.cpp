// tarvel global-address: one global address lookup, printed for scripts.
#include "app/commands.h"
#include "net/tvl_ret_global_ip_address.h"
#include "prefs/plist_settings_store.h"
#include "toolkit/localization.h"

#include <QCoreApplication>
#include <QTextStream>

#include <memory>

int runGlobalAddress(const AppOptions& options, int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvel"));
    installTranslations(app);

    // Services named on the command line are asked as given; otherwise the user's list or the
    // built-in table, shuffled as the monitor does.
    std::unique_ptr<TvlRetGlobalIpAddress> lookup;
    if (options.services.isEmpty())
        lookup = std::make_unique<TvlRetGlobalIpAddress>(*openSettingsStore(options));
    else
        lookup = std::make_unique<TvlRetGlobalIpAddress>(options.services);

    lookup->loadGlobalIpAddress([](const GlobalIpResult& result) {
        if (!result.ip.isEmpty()) {
            QTextStream(stdout) << result.ip << '\n';
            QCoreApplication::exit(0);
            return;
        }
        QTextStream err(stderr);
        err << "tarvel: no service answered with a global IPv4 address";
        if (!result.er.isEmpty())
            err << " (the last one: " << result.er << ')';
        err << '\n';
        QCoreApplication::exit(1);
    });
    return QCoreApplication::exec();
}
