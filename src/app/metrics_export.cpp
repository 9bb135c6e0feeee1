// Hands each finished cycle's figures to the server; starts and stops it as the settings say.
#include "app/metrics_export.h"

#include "app/app_delegate.h"
#include "app/app_logging.h"
#include "export/metrics_server.h"
#include "modules/general/metrics_keys.h"
#include "modules/module_registry.h"
#include "toolkit/localization.h"

#include <unistd.h>

namespace {

double clockTicksPerSecond()
{
    const long ticks = sysconf(_SC_CLK_TCK);
    return ticks > 0 ? static_cast<double>(ticks) : 100.0;
}

} // namespace

MetricsExport::MetricsExport(AppDelegate& delegate, QObject* parent)
    : QObject(parent)
    , delegate_(delegate)
    , server_(new MetricsServer(this))
{
    connect(&delegate_, &AppDelegate::cycleFinished, this, &MetricsExport::cycleFinished);
}

bool MetricsExport::serve(const ListenAddress& address)
{
    delegate_.setExportWanted(true);
    if (server_->listen(address)) {
        setStatus(Tarvel::localized("Serving metrics at %1").arg(metricsUrl(address.host, server_->port())));
        return true;
    }
    delegate_.setExportWanted(false);
    if (server_->addressInUse())
        setStatus(Tarvel::localized("Port %1 is already in use; metrics are not served.").arg(address.port));
    else
        setStatus(Tarvel::localized("Metrics cannot be served on this address: %1").arg(server_->errorString()));
    return false;
}

void MetricsExport::stop()
{
    server_->close();
    delegate_.setExportWanted(false);
    setStatus({});
}

void MetricsExport::followSettings()
{
    followingSettings_ = true;
    applySettings();
}

void MetricsExport::cycleFinished()
{
    if (followingSettings_)
        applySettings();
    if (!server_->isListening())
        return;
    ExportFigures figures;
    figures.info = delegate_.infoDict();
    for (std::size_t i = 0; i < kModuleCount; ++i) {
        const ModuleId id = static_cast<ModuleId>(i);
        figures.switchedOn[i] = id != ModuleId::General && delegate_.chkGeneBool(moduleSchema(id).switchKey);
    }
    figures.extras = delegate_.exportExtras().value_or(ExportExtras{});
    figures.pageSize = static_cast<double>(delegate_.loadInfo().memoryPageSize());
    figures.ticksPerSecond = clockTicksPerSecond();
    server_->setFamilies(builder_.update(figures));
}

void MetricsExport::applySettings()
{
    const ModuleDefaults& general = delegate_.generalDefaults();
    const bool enabled = general.boolValue(QLatin1String(PrefKey::MetricsServeEnabled));
    QString address = general.stringValue(QLatin1String(PrefKey::MetricsListenAddress));
    if (address.trimmed().isEmpty())
        address = QString::fromLatin1(kDefaultListenAddress);
    if (enabled == appliedEnabled_ && address == appliedAddress_)
        return;
    appliedEnabled_ = enabled;
    appliedAddress_ = address;
    if (!enabled) {
        stop();
        return;
    }
    if (const auto listen = parseListenAddress(address)) {
        serve(*listen);
    } else {
        stop();
        setStatus(Tarvel::localized("\"%1\" is not an address and port such as 127.0.0.1:9772.").arg(address));
    }
}

void MetricsExport::setStatus(const QString& status)
{
    if (status == status_)
        return;
    status_ = status;
    if (!status.isEmpty())
        qCInfo(lcApp).noquote() << status;
    Q_EMIT statusChanged(status_);
}
