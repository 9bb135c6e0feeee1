// The dynamic DNS check: address lookup, comparison with the record, and the line walk.
#include "net/general_functions_ddns.h"

#include "net/ddns_line_walker.h"
#include "net/ddns_settings.h"
#include "net/format_objects.h"
#include "prefs/pref_keys.h"
#include "prefs/settings_store.h"
#include "toolkit/localization.h"

#include <QCoreApplication>

namespace {

void report(const GeneralFunctions::DdnsFinished& finished, const QString& outcome)
{
    if (finished)
        finished(outcome);
}

void startWalk(DdnsLineWalker::Walk walk, Notifier& notifier, GeneralFunctions::DdnsFinished finished)
{
    auto* walker = new DdnsLineWalker(std::move(walk), notifier);
    QObject::connect(walker, &QThread::finished, walker, [walker, finished = std::move(finished)] {
        walker->wait(); // finished is sent just before the thread ends
        report(finished, walker->outcome());
        walker->deleteLater();
    });
    // A walk still under way at quit stops between requests instead of outliving the program.
    if (auto* app = QCoreApplication::instance()) {
        QObject::connect(app, &QCoreApplication::aboutToQuit, walker, [walker] {
            walker->requestInterruption();
            walker->wait();
        });
    }
    walker->start();
}

} // namespace

namespace GeneralFunctions {

void checkGlobalIpAddressForDdns(const QString& newAddress, bool forced, SettingsStore& store, Notifier& notifier,
                                 const DdnsCheckOptions& options, DdnsFinished finished)
{
    const QVariant recorded = store.objectForKey(PrefKey::NowGlobalIpAddr);
    const QString oldText = recorded.isValid() ? recorded.toString() : Tarvel::localized("(No Record)");
    if (recorded.isValid() && recorded.toString() == newAddress) {
        report(finished, fillObjects(Tarvel::localized("The global IP address is unchanged (%@)."), {newAddress}));
        return;
    }
    store.setString(PrefKey::NowGlobalIpAddr, newAddress);
    store.synchronize();
    DdnsLineWalker::Walk walk{store.stringForKey(PrefKey::DdnsPropertyString).split(QLatin1Char('\n')),
                              newAddress,
                              oldText,
                              forced,
                              options.endpointBase,
                              options.updateTimeoutMs};
    startWalk(std::move(walk), notifier, std::move(finished));
}

void runDdnsCheck(SettingsStore& store, Notifier& notifier, bool forced, const DdnsCheckOptions& options,
                  DdnsFinished finished)
{
    if (!DdnsSettings::hasDdnsList(store)) {
        report(finished, Tarvel::localized("No dynamic DNS lines are set."));
        return;
    }
    auto* lookup =
        options.lookupServices ? new TvlRetGlobalIpAddress(*options.lookupServices) : new TvlRetGlobalIpAddress(store);
    lookup->setRequestTimeoutMs(options.lookupTimeoutMs);
    TvlRetGlobalIpAddress::lookUpOnce(
        lookup, [&store, &notifier, forced, options, finished = std::move(finished)](const GlobalIpResult& result) {
            if (result.ip.isEmpty())
                report(finished, Tarvel::localized("The global IP address could not be found."));
            else
                checkGlobalIpAddressForDdns(result.ip, forced, store, notifier, options, finished);
        });
}

void forcedExecutionDdns(SettingsStore& store, Notifier& notifier, const DdnsCheckOptions& options,
                         DdnsFinished finished)
{
    store.removeObjectForKey(PrefKey::NowGlobalIpAddr);
    store.synchronize();
    runDdnsCheck(store, notifier, true, options, std::move(finished));
}

} // namespace GeneralFunctions
