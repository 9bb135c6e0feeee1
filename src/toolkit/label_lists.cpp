// Label lists, translated entry by entry with the English text as key.
#include "toolkit/label_lists.h"

#include "toolkit/localization.h"

#include <QtGlobal>

#include <array>
#include <span>

// The context must match the one localized() looks up; the macro only marks texts for lupdate.
#define TVL_LABEL(text) QT_TRANSLATE_NOOP("Tarvel", text)

namespace {

QStringList localizedList(std::span<const char* const> keys)
{
    QStringList labels;
    labels.reserve(static_cast<qsizetype>(keys.size()));
    for (const char* key : keys)
        labels.append(localized(key));
    return labels;
}

QList<QStringList> localizedPairs(std::span<const std::array<const char*, 2>> pairs)
{
    QList<QStringList> labels;
    labels.reserve(static_cast<qsizetype>(pairs.size()));
    for (const auto& pair : pairs)
        labels.append(QStringList{localized(pair[0]), localized(pair[1])});
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
    static constexpr const char* kKeys[] = {TVL_LABEL("Default"), TVL_LABEL("Opposed"),
                                            TVL_LABEL("Centered"), TVL_LABEL("Line Graph"),
                                            TVL_LABEL("Line Graph (Heavy line)")};
    return localizedList(kKeys);
}

QStringList retMemoryUnit()
{
    static constexpr const char* kKeys[] = {TVL_LABEL("Automatic"), TVL_LABEL("Unify in MB"),
                                            TVL_LABEL("Unify in GB")};
    return localizedList(kKeys);
}

QStringList retNetworkBitOrByte()
{
    // The bytes entry uses full-width parentheses, the bits entry ASCII ones; both are keys.
    static constexpr const char* kKeys[] = {TVL_LABEL("KB/s（Bytes）"), TVL_LABEL("Kbps (Bits)")};
    return localizedList(kKeys);
}

QList<QStringList> retNetworkUdLabel()
{
    static constexpr std::array<const char*, 2> kPairs[] = {
        {TVL_LABEL("Up"), TVL_LABEL("Dw")},
        {TVL_LABEL("Upload"), TVL_LABEL("Download")},
        {TVL_LABEL("Out"), TVL_LABEL("In")},
        {TVL_LABEL("Send"), TVL_LABEL("Receive")}};
    return localizedPairs(kPairs);
}

QList<QStringList> retDiskReadWrite()
{
    static constexpr std::array<const char*, 2> kPairs[] = {
        {TVL_LABEL("-"), TVL_LABEL("-")},
        {TVL_LABEL("R:"), TVL_LABEL("W:")},
        {TVL_LABEL("Read:"), TVL_LABEL("Write:")}};
    return localizedPairs(kPairs);
}

QStringList retVolumePercentKind()
{
    static constexpr const char* kKeys[] = {TVL_LABEL("Show Used"), TVL_LABEL("Show Free")};
    return localizedList(kKeys);
}

QList<QStringList> retVolumeUsedFree()
{
    static constexpr std::array<const char*, 2> kPairs[] = {
        {TVL_LABEL("-"), TVL_LABEL("-")},
        {TVL_LABEL("U:"), TVL_LABEL("F:")},
        {TVL_LABEL("Used:"), TVL_LABEL("Free:")}};
    return localizedPairs(kPairs);
}

} // namespace PlistFunction
