// Collects every switched-on module's part of the snapshot, in registry order.
#include "app/snapshot_report.h"

#include "app/app_delegate.h"
#include "app/volume_tracker.h"
#include "modules/module_registry.h"

#include <QJsonDocument>

SnapshotReport::SnapshotReport(LoadSystemInformation& loadInfo)
{
    for (std::size_t i = 0; i < parts_.size(); ++i) {
        if (const auto create = moduleRegistry()[i]->createSnapshot)
            parts_[i] = create(loadInfo);
    }
}

SnapshotReport::~SnapshotReport() = default;

void SnapshotReport::cycleFinished()
{
    for (const auto& part : parts_) {
        if (part)
            part->cycleFinished();
    }
}

namespace {

// Calls f(part, context) for every module that reports and is switched on.
template <class F> void forEachPart(AppDelegate& app, const auto& parts, F f)
{
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const ModuleSchema& schema = moduleRegistry()[i]->schema;
        if (!parts[i] || !app.chkGeneBool(schema.switchKey))
            continue;
        const VolumeTracker& storage = app.volumeTracker();
        const SnapshotContext context{app.infoDict(),          i,
                                      schema.moduleKey,        app.defaults(schema.id),
                                      app.collector(),         storage.diskBaseDict(),
                                      storage.volumeBaseDict(), app.sensorDatDict()};
        f(*parts[i], context);
    }
}

} // namespace

QString SnapshotReport::text(AppDelegate& app)
{
    QString out;
    forEachPart(app, parts_, [&out](ModuleSnapshot& part, const SnapshotContext& c) { out += part.text(c); });
    return out;
}

QByteArray SnapshotReport::json(AppDelegate& app)
{
    QJsonObject root;
    forEachPart(app, parts_, [&root](ModuleSnapshot& part, const SnapshotContext& c) { part.addJson(c, root); });
    return QJsonDocument(root).toJson(QJsonDocument::Compact) + '\n';
}
