// Property-list files read and written through libplist, as Qt variants.
#include "prefs/plist_io.h"

#include "toolkit/guarded_file.h"
#include "toolkit/plist_nesting.h"

#include <QDateTime>
#include <QFile>
#include <QSaveFile>
#include <QTimeZone>

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>

namespace PlistIo {
namespace {

// Property-list dates count seconds from the start of 2001, UTC.
QDateTime plistEpoch()
{
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc());
}

struct PlistFree {
    void operator()(void* node) const { plist_free(static_cast<plist_t>(node)); }
};
using PlistPtr = std::unique_ptr<void, PlistFree>;

struct CFree {
    void operator()(void* p) const { std::free(p); }
};

QVariant toVariant(plist_t node, int depth);

QVariant dictToVariant(plist_t node, int depth)
{
    QVariantMap map;
    plist_dict_iter iter = nullptr;
    plist_dict_new_iter(node, &iter);
    if (!iter)
        return map;
    const std::unique_ptr<void, CFree> iterOwner(iter);
    for (;;) {
        char* rawKey = nullptr;
        plist_t value = nullptr;
        plist_dict_next_item(node, iter, &rawKey, &value);
        const std::unique_ptr<char, CFree> key(rawKey);
        if (!value)
            break;
        const QVariant converted = toVariant(value, depth + 1);
        if (key && converted.isValid())
            map.insert(QString::fromUtf8(key.get()), converted);
    }
    return map;
}

QVariant arrayToVariant(plist_t node, int depth)
{
    QVariantList list;
    const uint32_t size = plist_array_get_size(node);
    for (uint32_t i = 0; i < size; ++i) {
        const QVariant converted = toVariant(plist_array_get_item(node, i), depth + 1);
        if (converted.isValid())
            list.append(converted);
    }
    return list;
}

QVariant toVariant(plist_t node, int depth)
{
    // A hostile file could nest deeply enough to exhaust the stack.
    if (!node || depth > kMaxNesting)
        return {};
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return dictToVariant(node, depth);
    case PLIST_ARRAY:
        return arrayToVariant(node, depth);
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT: {
        // libplist keeps signed integers as their two's-complement bit pattern.
        uint64_t value = 0;
        plist_get_uint_val(node, &value);
        return static_cast<qint64>(value);
    }
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_STRING: {
        // By pointer and length: libplist's copying getter aborts on a string holding a NUL.
        uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return text ? QString::fromUtf8(text, static_cast<qsizetype>(length)) : QString();
    }
    case PLIST_DATA: {
        uint64_t length = 0;
        const char* bytes = plist_get_data_ptr(node, &length);
        if (!bytes || length > static_cast<uint64_t>(std::numeric_limits<qsizetype>::max()))
            return QByteArray();
        return QByteArray(bytes, static_cast<qsizetype>(length));
    }
    case PLIST_DATE: {
        int32_t seconds = 0;
        int32_t micros = 0;
        plist_get_date_val(node, &seconds, &micros);
        return plistEpoch().addMSecs(qint64(seconds) * 1000 + micros / 1000);
    }
    default:
        return {};
    }
}

plist_t fromVariant(const QVariant& value);

plist_t dictFromVariant(const QVariantMap& map)
{
    plist_t dict = plist_new_dict();
    for (auto it = map.cbegin(); it != map.cend(); ++it) {
        if (plist_t item = fromVariant(it.value()))
            plist_dict_set_item(dict, it.key().toUtf8().constData(), item);
    }
    return dict;
}

plist_t arrayFromVariant(const QVariantList& list)
{
    plist_t array = plist_new_array();
    for (const QVariant& element : list) {
        if (plist_t item = fromVariant(element))
            plist_array_append_item(array, item);
    }
    return array;
}

plist_t dateFromVariant(const QDateTime& when)
{
    const qint64 msecs = plistEpoch().msecsTo(when);
    const qint64 seconds = msecs / 1000;
    if (seconds < std::numeric_limits<int32_t>::min() || seconds > std::numeric_limits<int32_t>::max())
        return nullptr;
    return plist_new_date(static_cast<int32_t>(seconds), static_cast<int32_t>((msecs % 1000) * 1000));
}

plist_t fromVariant(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QVariantMap:
        return dictFromVariant(value.toMap());
    case QMetaType::QVariantList:
    case QMetaType::QStringList:
        return arrayFromVariant(value.toList());
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return plist_new_data(bytes.constData(), static_cast<uint64_t>(bytes.size()));
    }
    case QMetaType::QDateTime:
    case QMetaType::QDate:
        return dateFromVariant(value.toDateTime());
    case QMetaType::Bool:
        return plist_new_bool(value.toBool() ? 1 : 0);
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::Long:
    case QMetaType::SChar:
        return plist_new_uint(static_cast<uint64_t>(value.toLongLong()));
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::ULong:
    case QMetaType::UChar:
        return plist_new_uint(value.toULongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        return plist_new_real(value.toDouble());
    case QMetaType::QString:
        return plist_new_string(value.toString().toUtf8().constData());
    default:
        // Anything else (including an empty variant) has no property-list form and is left out.
        return nullptr;
    }
}

} // namespace

std::optional<QVariant> parse(const QByteArray& bytes)
{
    if (bytes.isEmpty() || bytes.size() > std::numeric_limits<int32_t>::max())
        return std::nullopt;
    if (!plistNestingWithin(bytes, kMaxNesting))
        return std::nullopt;
    plist_t root = nullptr;
    plist_from_memory(bytes.constData(), static_cast<uint32_t>(bytes.size()), &root);
    const PlistPtr owner(root);
    if (!root)
        return std::nullopt;
    QVariant converted = toVariant(root, 0);
    if (!converted.isValid())
        return std::nullopt;
    return converted;
}

QByteArray toXml(const QVariant& value)
{
    const PlistPtr root(fromVariant(value));
    if (!root)
        return {};
    char* xml = nullptr;
    uint32_t length = 0;
    plist_to_xml(root.get(), &xml, &length);
    if (!xml)
        return {};
    QByteArray out(xml, static_cast<qsizetype>(length));
    plist_to_xml_free(xml);
    return out;
}

std::optional<QVariantMap> readDictionary(const QString& path)
{
    const std::optional<QByteArray> bytes = GuardedFile::readBounded(path, kMaxFileBytes);
    if (!bytes)
        return std::nullopt;
    const std::optional<QVariant> root = parse(*bytes);
    if (!root || root->typeId() != QMetaType::QVariantMap)
        return std::nullopt;
    return root->toMap();
}

bool writeDictionaryAtomically(const QString& path, const QVariantMap& dict)
{
    const QByteArray xml = toXml(dict);
    if (xml.isEmpty())
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(xml) != xml.size()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

} // namespace PlistIo
