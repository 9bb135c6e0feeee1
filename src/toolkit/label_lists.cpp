// Label lists, translated entry by entry with the English text as key.
#include "toolkit/label_lists.h"

#include "toolkit/localization.h"

#include <QtGlobal>

#include <array>
#include <span>

namespace {

QStringList localizedList(std::span<const char* const> keys)
{
    QStringList labels;
    labels.reserve(static_cast<qsizetype>(keys.size()));
    for (const char* key : keys)
        labels.append(Tarvel::localized(key));
    return labels;
}

QList<QStringList> localizedPairs(std::span<const std::array<const char*, 2>> pairs)
{
    QList<QStringList> labels;
    labels.reserve(static_cast<qsizetype>(pairs.size()));
    for (const auto& pair : pairs)
        labels.append(QStringList{Tarvel::localized(pair[0]), Tarvel::localized(pair[1])});
    return labels;
}

} // namespace

namespace GeneralFunctions {

QStringList retTempUnit()
{
    return {QStringLiteral("°C"), QStringLiteral("°F"), QStringLiteral("K")};
}

} // namespace GeneralFunctions

namespace PlistFunction {

QStringList retGeneralGraphKind()
{
    static constexpr const char* kKeys[] = {Tarvel::textKey("Default"), Tarvel::textKey("Opposed"),
                                            Tarvel::textKey("Centered"), Tarvel::textKey("Line Graph"),
                                            Tarvel::textKey("Line Graph (Heavy line)")};
    return localizedList(kKeys);
}

QStringList retMemoryUnit()
{
    static constexpr const char* kKeys[] = {Tarvel::textKey("Automatic"), Tarvel::textKey("Unify in MB"),
                                            Tarvel::textKey("Unify in GB")};
    return localizedList(kKeys);
}

QStringList retNetworkBitOrByte()
{
    // The bytes entry uses full-width parentheses, the bits entry ASCII ones; both are keys.
    static constexpr const char* kKeys[] = {Tarvel::textKey("KB/s（Bytes）"), Tarvel::textKey("Kbps (Bits)")};
    return localizedList(kKeys);
}

QList<QStringList> retNetworkUdLabel()
{
    static constexpr std::array<const char*, 2> kPairs[] = {
        {Tarvel::textKey("Up"), Tarvel::textKey("Dw")},
        {Tarvel::textKey("Upload"), Tarvel::textKey("Download")},
        {Tarvel::textKey("Out"), Tarvel::textKey("In")},
        {Tarvel::textKey("Send"), Tarvel::textKey("Receive")}};
    return localizedPairs(kPairs);
}

QList<QStringList> retDiskReadWrite()
{
    static constexpr std::array<const char*, 2> kPairs[] = {
        {Tarvel::textKey("-"), Tarvel::textKey("-")},
        {Tarvel::textKey("R:"), Tarvel::textKey("W:")},
        {Tarvel::textKey("Read:"), Tarvel::textKey("Write:")}};
    return localizedPairs(kPairs);
}

QStringList retVolumePercentKind()
{
    static constexpr const char* kKeys[] = {Tarvel::textKey("Show Used"), Tarvel::textKey("Show Free")};
    return localizedList(kKeys);
}

QList<QStringList> retVolumeUsedFree()
{
    static constexpr std::array<const char*, 2> kPairs[] = {
        {Tarvel::textKey("-"), Tarvel::textKey("-")},
        {Tarvel::textKey("U:"), Tarvel::textKey("F:")},
        {Tarvel::textKey("Used:"), Tarvel::textKey("Free:")}};
    return localizedPairs(kPairs);
}

} // namespace PlistFunction
