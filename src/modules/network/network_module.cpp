// The Network module: its settings, its step of the sampling cycle, its snapshot and its parts.
#include "collect/load_system_information.h"
#include "modules/module_descriptor.h"
#include "modules/network/network_module_picture.h"
#include "modules/network/network_rates.h"
#include "prefs/pref_keys.h"
#include "prefs/pref_measure.h"
#include "toolkit/counter_arithmetic.h"
#include "toolkit/label_lists.h"
#include "toolkit/localization.h"

namespace {

using namespace PrefKey;
using namespace SchemaParts;
using T = PrefType;

void deriveNetwork(ModuleDefaults& d, SettingsStore&, const QVariantMap& theme, ModuleSchemaList)
{
    const PrefMeasure m = PrefMeasure::fromTheme(theme);
    const QStringList labels =
        PlistFunction::labelForSetting(PlistFunction::retNetworkUdLabel(), d.intValue(Network_UdLabel_Mode));
    d.set(Network_UdLabel_ModeAry, labels);
    d.set(NetworkInnerUdLabelWidth, m.widest(labels));
    d.set(NetworkInnerTextWidth, m.floorWidth(QStringLiteral("888.8XXX")));
}

ModuleSchema networkSchema()
{
    return {ModuleId::Network,
            "Network",
            LaunchNetw,
            3,
            "NetworkModuleNotif",
            Tarvel::textKey("Network"),
            Network_UpdateInterval,
            withToolItems({{NetworkItemSortArray, T::Array, ints({1, 2, 3, 4})},
                           {Network_Display_UdLabel, T::Bool, false},
                           {Network_Display_UdCircle, T::Bool, false},
                           {Network_Display_Graph, T::Bool, true},
                           {Network_Display_Text, T::Bool, true},
                           {Network_UdLabel_Mode, T::Integer, 1},
                           {Network_Graph_Mode, T::Integer, 1},
                           {Network_Text_Mode, T::Integer, 1},
                           {Network_Limen_Base, T::Integer, 1, PrefRange{0, 100}},
                           {Network_UpdateInterval, T::TruncatedInteger, 2, kIntervalRange},
                           {Network_GraphWidth, T::TruncatedInteger, 30, kGraphWidthRange},
                           {Network_ShowAllNic, T::Bool, QVariant()},
                           {Network_ShowMyLabel, T::Bool, QVariant()}},
                          Network_EnaMenu_Amon, Network_EnaMenu_Cnsl, Network_EnaMenu_Tmnl),
            colors({"C01", "C02", "C03", "C04"}),
            sharedPictures("L03", {{"O21", PictureSize::Icon18}, {"O22", PictureSize::Icon18}}),
            // The up/down label alone is no picture, so it does not switch the module on.
            {Network_Display_UdCircle, Network_Display_Graph, Network_Display_Text},
            &deriveNetwork};
}

// The interface base is rebuilt on the first tick after the module comes back.
void forgetInterfaces(LoadSystemInformation& loadInfo)
{
    loadInfo.clearInterfaceStatusChange();
}

void sampleNetwork(const SampleRequest& request, InfoDict& info)
{
    const auto seconds = static_cast<double>(request.seconds);
    if (auto sample = request.loadInfo.loadNetworkData(seconds, *request.loadInfo.networkBaseDict()))
        appendSample(request, info, std::move(*sample));
}

QString networkSnapshotText(const SnapshotContext& context)
{
    QString out = QStringLiteral("Network\n");
    const History<NetworkSample> history = context.info.history<NetworkSample>(context.slot);
    if (history.empty())
        return out + QStringLiteral("  no sample yet\n");
    const NetworkSample& newest = history.back();
    out += QStringLiteral("  ") + networkBarText(currentNetworkRates(history), networkRatesInBits(context.settings)) +
           QLatin1Char('\n');
    out += QStringLiteral("  sent %1 received %2 bytes, over %3 s\n")
               .arg(Counter::asCounter(newest.toUp))
               .arg(Counter::asCounter(newest.toDw))
               .arg(newest.interval);
    for (const InterfacePackets& p : newest.packets)
        out += QStringLiteral("  %1 %2 packets sent, %3 received\n")
                   .arg(QString::fromStdString(p.name))
                   .arg(p.up)
                   .arg(p.dw);
    return out;
}

QString networkBarLine(const SnapshotContext& context, const SettingsStore&)
{
    const History<NetworkSample> history = context.info.history<NetworkSample>(context.slot);
    if (history.empty())
        return {};
    return networkBarText(currentNetworkRates(history), networkRatesInBits(context.settings));
}

void addNetworkSnapshotJson(const SnapshotContext& context, QJsonObject& root)
{
    const History<NetworkSample> history = context.info.history<NetworkSample>(context.slot);
    if (history.empty())
        return;
    const NetworkSample& sample = history.back();
    // Interfaces get an object of their own: named "to", one would otherwise write over the totals.
    QJsonObject interfaces;
    for (const InterfacePackets& p : sample.packets)
        interfaces.insert(QString::fromStdString(p.name),
                          QJsonObject{{"up", static_cast<qint64>(p.up)}, {"dw", static_cast<qint64>(p.dw)}});
    root.insert(QLatin1String(context.key),
                QJsonObject{{"to_up", qint64{Counter::saturated(Counter::asCounter(sample.toUp))}},
                            {"to_dw", qint64{Counter::saturated(Counter::asCounter(sample.toDw))}},
                            {"int", sample.interval},
                            {"packets", interfaces}});
}

} // namespace

const ModuleDescriptor& networkModule()
{
    static const ModuleDescriptor descriptor{networkSchema(),
                                             &sampleNetwork,
                                             false,
                                             StorageUse::None,
                                             &makePlainSnapshot<&networkSnapshotText, &addNetworkSnapshotJson>,
                                             &forgetInterfaces,
                                             &networkBarLine,
                                             &makePicture<NetworkModulePicture>};
    return descriptor;
}
